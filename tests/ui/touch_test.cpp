#include "support/boards.h"
#include "ui/window_fixture.h"

#include <QLineEdit>
#include <QTest>

namespace orb::tests {
namespace {

class TouchTest : public WindowTest {
 protected:
  using Fingers = std::vector<QPoint>;

  QWidget& Map() const { return Find<QWidget>("picMap"); }

  QPoint At(const char* place) const {
    const auto& map = *RealMap();
    const model::Province& province = map.Provinces[model::FindProvince(map, place)];
    return {qRound(static_cast<double>(province.UnitX) * Map().width()),
            qRound(static_cast<double>(province.UnitY) * Map().height())};
  }

  /// Leads fingers over the map, which may move below them, and lifts them.
  void Touch(const std::vector<Fingers>& steps) {
    // On the screen, so that what the map does is no further movement.
    const QPoint origin = Map().mapToGlobal(QPoint());
    const auto here = [&](QPoint point) { return Map().mapFromGlobal(origin + point); };
    std::size_t touching = 0;
    for (const Fingers& step : steps) {
      auto event = QTest::touchEvent(&Map(), device_);
      for (std::size_t finger = 0; finger < step.size(); ++finger) {
        const int id = static_cast<int>(finger);
        finger < touching ? event.move(id, here(step[finger]), &Map())
                          : event.press(id, here(step[finger]), &Map());
      }
      touching = step.size();
    }
    auto lifted = QTest::touchEvent(&Map(), device_);
    for (std::size_t finger = 0; finger < touching; ++finger)
      lifted.release(static_cast<int>(finger), here(steps.back()[finger]), &Map());
  }

  QPointingDevice* device_ = QTest::createTouchDevice();
};

TEST_F(TouchTest, ATapClicksTwoFingersZoomAndOneMovesTheEnlargedMap) {
  const auto& box = Find<QLineEdit>("txtOrder");
  Touch({{At("Lon")}});
  EXPECT_EQ(box.text(), "ENG F(Lon) ");

  const QPoint middle = At("Mun");
  const QPoint side(40, 0);
  const int width = Map().width();
  const QPoint munich = Map().mapToGlobal(middle);
  Touch({{middle - side},
         {middle - side, middle + side},
         {middle - 1.5 * side, middle + 1.5 * side},
         {middle - 2 * side, middle + 2 * side},
         {middle - 3 * side, middle + 3 * side}});
  EXPECT_NEAR(Map().width(), 3 * width, width / 2);
  EXPECT_LT((Map().mapToGlobal(At("Mun")) - munich).manhattanLength(), 30) << "stays in its place";
  EXPECT_EQ(box.text(), "ENG F(Lon) ") << "no finger clicked";

  const QPoint before = Map().pos();
  const QPoint from = At("Mun");
  Touch({{from}, {from - side}, {from - 2 * side}});
  EXPECT_EQ(Map().pos(), before - 2 * side);
  EXPECT_EQ(box.text(), "ENG F(Lon) ");
}

}  // namespace
}  // namespace orb::tests
