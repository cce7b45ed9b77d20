#include "model/counts.h"
#include "model/lookups.h"
#include "model/place.h"
#include "render/drawing.h"
#include "render/hit_map.h"
#include "render/label_boxes.h"
#include "render/labels.h"
#include "render/qt/painter_surface.h"
#include "render/recorder.h"
#include "render/symbols.h"
#include "support/boards.h"
#include "support/directories.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using render::Rectangle;

/// The real map at its natural size: 1000 pixels, with its real font.
class Places : public ::testing::Test {
 protected:
  Places() { render::SetLabelFont(surface_); }

  render::Point Unit(int row) const {
    return render::OnSurface(surface_, render::UnitPoint(map_->Provinces[row]));
  }

  /// What a unit of any type that can stand there covers.
  std::vector<Rectangle> UnitBoxes(int row) const {
    std::vector<Rectangle> boxes;
    for (const char* type : {"A", "F"}) {
      if (model::CanStandIn(*map_, type, map_->Provinces[row].Name))
        boxes.push_back(render::UnitBox(type, Unit(row), 1));
    }
    return boxes;
  }

  /// What the marker of a centre's owner covers.
  Rectangle Marker(int row) const {
    model::GameState game = EmptyBoard("Spring", "moves");
    game.Provinces[row].Owner = "FRA";
    Recorder drawn;
    render::DrawCentreOwnerMarker(drawn, game, {settings::MapMode::Colour}, row);
    const model::Province& place = map_->Provinces[row];
    const render::Point there = render::CentreDot(drawn, place);
    const render::Point here = render::CentreDot(surface_, place);
    const auto& corners = drawn.Strokes.at(0).Points;
    const auto [left, right] = std::ranges::minmax(corners, {}, &render::Point::X);
    const auto [top, bottom] = std::ranges::minmax(corners, {}, &render::Point::Y);
    return {{left.X - there.X + here.X, top.Y - there.Y + here.Y},
            {right.X - there.X + here.X, bottom.Y - there.Y + here.Y}};
  }

  const std::shared_ptr<const model::Map> map_ = RealMap();
  QImage image_{1000, 833, QImage::Format_RGB32};
  QPainter painter_{&image_};
  render::PictureCache pictures_;
  render::PainterSurface surface_{painter_, QRectF(image_.rect()), QSizeF(15000, 12502.5),
                                  pictures_};
};

TEST_F(Places, UnitsOfNeighboursStandThirtySixPixelsApart) {
  for (const model::Adjacency* adjacency : {&map_->ArmyAdjacency, &map_->FleetAdjacency}) {
    for (int row = 1; row <= map_->Provinces.Count(); ++row) {
      for (const int other : adjacency->at(static_cast<std::size_t>(row - 1))) {
        if (other == 0) break;
        EXPECT_GE(render::Distance(Unit(row), Unit(other)), 36 * render::TwipsPerPixel)
            << map_->Provinces[row].Name << " and " << map_->Provinces[other].Name;
      }
    }
  }
}

TEST_F(Places, LabelsLieInTheirProvinces) {
  const render::HitMap hitMap = render::LoadHitMap(DataDirectory(), *map_, 1.2);
  const auto labels = render::LabelBoxesOf(surface_, *map_);
  for (int row = 1; row <= map_->Provinces.Count(); ++row) {
    const model::Province& place = map_->Provinces[row];
    if (model::IsCoast(place.Name)) continue;
    const Rectangle& text = labels[static_cast<std::size_t>(row - 1)].Text;
    int outside = 0;
    for (double x = text.TopLeft.X; x <= text.BottomRight.X; x += render::TwipsPerPixel) {
      for (double y = text.TopLeft.Y; y <= text.BottomRight.Y; y += render::TwipsPerPixel) {
        const render::Point at = {x / surface_.ScaleWidth(), y / surface_.ScaleHeight()};
        outside += hitMap.LocationAt(*map_, at, "A") == row ? 0 : 1;
      }
    }
    EXPECT_LE(outside, 3) << place.Name << ": pixels of its box of " << 25 * 11;
  }
}

TEST_F(Places, LabelsUnitsAndMarkersKeepClearOfEachOther) {
  const auto labels = render::LabelBoxesOf(surface_, *map_);
  const auto name = [&](int row) { return map_->Provinces[row].Name; };
  const auto label = [&](int row) { return labels[static_cast<std::size_t>(row - 1)].Text; };
  for (int row = 1; row <= map_->Provinces.Count(); ++row) {
    for (int other = 1; other <= map_->Provinces.Count(); ++other) {
      if (row != other) {
        EXPECT_EQ(render::CommonArea(label(row), label(other)), 0) << name(row) << name(other);
      }
      for (const Rectangle& unit : UnitBoxes(other)) {
        EXPECT_EQ(render::CommonArea(label(row), unit), 0)
            << "label of " << name(row) << " and unit in " << name(other);
      }
    }
    if (!model::IsCentre(*map_, row)) continue;
    const Rectangle marker = Marker(row);
    for (int other = 1; other <= map_->Provinces.Count(); ++other) {
      EXPECT_EQ(render::CommonArea(marker, label(other)), 0)
          << "marker of " << name(row) << " and label of " << name(other);
      for (const Rectangle& unit : UnitBoxes(other)) {
        EXPECT_EQ(render::CommonArea(marker, unit), 0)
            << "marker of " << name(row) << " and unit in " << name(other);
      }
    }
  }
}

}  // namespace
}  // namespace orb::tests
