#pragma once

#include "render/surface.h"

#include <vector>

// Lines on a surface. Points and lengths are twips, directions have the length 1.

namespace orb::render {

/// A line through these points.
using Path = std::vector<Point>;

/// A place on a path and the direction of the path there.
struct Spot {
  Point At;
  Point Along;
};

/// An upright rectangle; an empty one has its corners the other way round.
struct Rectangle {
  Point TopLeft = {1, 1};
  Point BottomRight = {0, 0};
};

/// How much of two rectangles is common to both; 0 where one is empty.
double CommonArea(const Rectangle& a, const Rectangle& b);

/// The point that lies at a distance in a direction, or at several times a shift.
Point Moved(Point from, Point direction, double distance);

/// A quarter turn clockwise.
Point Right(Point direction);

/// Turned clockwise by an angle in radians.
Point Turned(Point direction, double angle);

double Distance(Point a, Point b);

/// The direction from a point to another one; to the right when they are the same.
Point Towards(Point from, Point to);

double LengthOf(const Path& path);

/// The part of a path between two distances from its start; empty where there is none.
Path PartOf(const Path& path, double start, double end);

/// The spot at a distance from the start. Of a path without a length, its end.
Spot SpotAt(const Path& path, double distance);

/// Whether the path comes nearer to the rectangle than this, upright and level.
bool Touches(const Path& path, const Rectangle& rectangle, double reach);

/// A circle, clockwise from its right.
Path RingPath(Point centre, double radius);

/// A wavy line 24 pixels wide.
Path WavePath(Point centre);

/// A curve that leaves for the bend and arrives from it; straight when the bend lies between.
Path CurvePath(Point from, Point bend, Point to);

}  // namespace orb::render
