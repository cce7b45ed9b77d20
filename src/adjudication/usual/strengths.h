#pragma once

#include "adjudication/usual/plans.h"

#include <cstdint>

// The strengths and conditions of the usual rules, each as far as it is known while only some moves
// have been decided: a number between two bounds, a condition that holds, does not, or is open.
// Where all is decided the bounds meet and nothing is open.

namespace orb::adjudication::usual {

/// What is known of some units. A unit in neither set is open.
struct Fates {
  UnitSet Yes;
  UnitSet No;
};

struct Known {
  Fates Moves;     ///< which moves succeed
  Fates Supports;  ///< which supports are given
  Fates Paths;     ///< which convoyed moves have their path
};

enum class Verdict : std::uint8_t { No, Open, Yes };

/// A number that is not fully known yet.
struct Bounds {
  int Low = 0;
  int High = 0;

  bool operator==(const Bounds&) const = default;
};

/// The supports of the unit's order that are given, but for those of one power (0: for none).
Bounds GivenSupports(const Plans& plans, const Known& known, int unit, int exceptPower = 0);

/// Hold strength of a place: 0 if no unit stands there, or the unit there moves away and succeeds;
/// 1 if it has a possible move that fails; else 1 + given supports to hold.
Bounds HoldStrength(const Plans& plans, const Known& known, int place);

/// Attack strength of a move: 0 without a path. If the target is empty, or its unit leaves with
/// success and the two are not head to head: 1 + given supports. Else, if the unit there is of the
/// mover's own power: 0. Else 1 + given supports, not counting those of the power attacked.
Bounds AttackStrength(const Plans& plans, const Known& known, int move);

/// Defend strength of a move, against its head-to-head opponent: 1 + given supports.
Bounds DefendStrength(const Plans& plans, const Known& known, int move);

/// Prevent strength of a move, against rivals for the same place: 0 without a path; 0 if it is head
/// to head and the opponent's move succeeds; else 1 + given supports.
Bounds PreventStrength(const Plans& plans, const Known& known, int move);

/// A move succeeds if its attack strength is greater than the opponent's defend strength (head to
/// head) or else the hold strength of the target, and greater than the prevent strength of every
/// other move to the same place.
Verdict Succeeds(const Plans& plans, const Known& known, int move);

/// A unit is dislodged if a move into its place succeeds and it has not left with success.
Verdict IsDislodged(const Plans& plans, const Known& known, int unit);

/// A move by land always has a path; a convoyed one while a chain of fleets ordered to carry it,
/// none of them dislodged, leads from its place to its target.
Verdict HasPath(const Plans& plans, const Known& known, int move);

/// Whether the attack cuts the support, if it has its path: it is of another power, and comes from
/// elsewhere than the place that the support is directed into.
bool CouldCut(const Plans& plans, int attack, int support);

/// A support that matches is given unless an attack that has its path cuts it, or its unit is
/// dislodged, by whomever.
Verdict IsGiven(const Plans& plans, const Known& known, int support);

}  // namespace orb::adjudication::usual
