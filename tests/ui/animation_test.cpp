#include "model/files.h"
#include "ui/modal_script.h"
#include "ui/replay/playhead.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QCoreApplication>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSlider>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;

QString Shown(const fs::path& path) {
  return QString::fromStdString(path.string());
}

class AnimationTest : public WindowTest {
 protected:
  bool IsOn() const { return Find<QWidget>("fraAnimate").isVisible(); }
  int Position() const { return Find<QSlider>("sldAnimate").value(); }
  std::string Season() const { return Find<QLabel>("lblAnimateSeason").text().toStdString(); }

  void CopyExample(const char* example, const char* name) const {
    fs::copy_file(examples_ / example, folder_.Path() / name);
  }

  /// The names of files in the folder as they are typed into a dialog.
  QString Typed(const std::vector<const char*>& names) const {
    QString typed;
    for (const char* name : names)
      typed += '"' + Shown(folder_.Path() / name) + "\" ";
    return typed;
  }

  const TemporaryDirectory folder_;
};

TEST(Playhead, GoesThroughTheSeasonsToTheEnd) {
  ui::Playhead head({2, 4});
  const auto at = [&](auto move) {
    move();
    return head.position();
  };
  EXPECT_EQ(at([&] { head.advance(1); }), 0.5);
  EXPECT_EQ(at([&] { head.advance(2); }), 1.25) << "the second season is longer";
  EXPECT_EQ(at([&] { head.back(); }), 1);
  EXPECT_EQ(at([&] { head.back(); }), 0);
  EXPECT_EQ(at([&] { head.forward(); }), 1);
  EXPECT_FALSE(head.atEnd());
  EXPECT_EQ(at([&] { head.forward(); }), 2);
  EXPECT_TRUE(head.atEnd());
  EXPECT_EQ(at([&] { head.moveTo(-1); }), 0);
  EXPECT_EQ(at([&] { head.advance(99); }), 2);
}

TEST_F(AnimationTest, TheSeasonIsPlayedInTheMapsPlaceAndTheGameIsBackAfterIt) {
  EXPECT_FALSE(Find<QAction>("mnuFileAnimateMove").isEnabled());
  Enter("AUS A(Vie) - Tyr");
  Enter("FRA A(Par) - Bur");
  Enter("GER A(Mun) - Bur");
  Resolve("ENG F(Lon)");
  QCoreApplication::processEvents();
  const QImage end = Map();
  const std::vector<std::string> report = Lines("lstReport");

  Trigger("mnuFileAnimateMove");
  ASSERT_TRUE(IsOn());
  EXPECT_LE(window_->minimumSizeHint().width(), 640) << "half a screen, for letters twice as large";
  EXPECT_EQ(Find<QWidget>("picAnimate").size(), Find<QWidget>("picMap").size());
  EXPECT_EQ(Season(), "Spring 1901, before moves") << "as the map says";
  EXPECT_EQ(Find<QWidget>("butAnimatePlay").accessibleName(), "Stop");
  Press(Qt::Key_Space);
  EXPECT_EQ(Find<QWidget>("butAnimatePlay").accessibleName(), "Play");
  for (const char* menu : {"mnuFile", "mnuEdit", "mnuGame"})
    EXPECT_FALSE(Find<QWidget>(menu).isEnabled()) << menu;
  Trigger("mnuMapGrey");
  Trigger("mnuMapColour3D");
  EXPECT_FALSE(Find<QWidget>("mnuGame").isEnabled()) << "the map's look may change";
  EXPECT_FALSE(Find<QWidget>("fraSeasonFinished").isEnabled());

  Press(Qt::Key_End);
  EXPECT_EQ(Position(), 1000);
  const QImage last = Map();
  Press(Qt::Key_Home);
  EXPECT_EQ(Position(), 0);
  const QImage first = Map();
  Find<QSlider>("sldAnimate").setValue(450);
  EXPECT_NE(Map(), first) << "the units are on their way";
  EXPECT_NE(Map(), last);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(IsOn());
  QCoreApplication::processEvents();
  EXPECT_EQ(Map(), end);
  EXPECT_EQ(Lines("lstReport"), report);
  EXPECT_EQ(StagePanel(), "fraSeasonFinished");
  Press(Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(StagePanel(), "fraOrders");
}

TEST_F(AnimationTest, FilesArePlayedInOrderAndThoseThatDoNotFitAreNamed) {
  CopyExample("1902-1-spring-0-start.orb", "con_S02.orb");
  CopyExample("1901-2-autumn-3-adjustments.orb", "con_a01_built.orb");
  CopyExample("1901-2-autumn-1-moves.orb", "con_a01.orb");
  CopyExample("1901-1-spring-1-moves.orb", "con_s01.orb");
  CopyExample("1901-1-spring-1-moves.orb", "con_s03.orb");
  folder_.Write("foreign_a02.orb",
                "\"ORB v5.5\"\r\n\"X\",\"Spring\",1901,\"moves\"\r\n0\r\n1\r\n"
                "\"Qqq\",\"\",0,\"\"\r\n");
  folder_.Write("plain.orb", "");
  const QImage map = Map();
  std::string leftOut;
  const auto readBox = [&](QDialog& dialog) {
    leftOut = dynamic_cast<QMessageBox&>(dialog).text().toStdString();
    dialog.accept();
  };
  {
    const ModalScript answers(
        {[&](QDialog& dialog) {
           EXPECT_EQ(dialog.windowTitle(), Titled(" Animate"));
           FileChosen(Typed({"con_S02.orb", "con_a01_built.orb", "plain.orb", "con_a01.orb",
                             "con_s01.orb", "con_s03.orb", "foreign_a02.orb"}))(dialog);
         },
         readBox});
    Trigger("mnuFileAnimate");
  }
  const std::string folder = folder_.Path().string() + "/";
  EXPECT_EQ(leftOut,
            "Left out of the animation:\n"
            "No season (S01, A01) in the name of: plain.orb.\n" +
                folder + "foreign_a02.orb: Unknown province: Qqq\n" + folder +
                "con_s03.orb: It holds Spring 1901, which is before con_S02.orb.\n");
  ASSERT_TRUE(IsOn());
  Press(Qt::Key_Space);
  Press(Qt::Key_Home);
  const QImage beginning = Map();
  const std::vector<std::pair<Qt::Key, std::pair<int, std::string>>> steps{
      {Qt::Key_Left, {0, "Spring 1901, before moves"}},
      {Qt::Key_Right, {1000, "Spring 1901, end"}},
      {Qt::Key_Right, {2000, "Autumn 1901, before adjustments"}},
      {Qt::Key_Right, {3000, "Autumn 1901, before adjustments"}},
      {Qt::Key_Right, {3000, "Autumn 1901, before adjustments"}},
      {Qt::Key_Left, {2000, "Autumn 1901, before adjustments"}},
      {Qt::Key_Left, {1000, "Spring 1901, end"}},
      {Qt::Key_Left, {0, "Spring 1901, before moves"}}};
  for (const auto& [key, expected] : steps) {
    Press(key);
    EXPECT_EQ(std::pair(Position(), Season()), expected);
    EXPECT_EQ(Map() == beginning, Position() == 0) << "each season has its own map";
  }
  Find<QPushButton>("butAnimateClose").click();
  EXPECT_EQ(Map(), map);
  EXPECT_EQ(StagePanel(), "fraOrders");
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtOrder");

  const ModalScript answers({FileChosen(Typed({"con_S02.orb"})),
                             Answered("There is nothing to animate.", Qt::Key_Return)});
  Trigger("mnuFileAnimate");
  EXPECT_FALSE(IsOn());
}

TEST_F(AnimationTest, AnExportIsWrittenWholeOrNotAtAll) {
  Resolve("ENG F(Lon)");
  Trigger("mnuFileAnimateMove");
  const fs::path file = folder_.Path() / "s01.gif";
  const auto cancel = [](QDialog& dialog) {
    dynamic_cast<QProgressDialog&>(dialog).findChild<QPushButton*>()->click();
  };
  const auto wait = [](QDialog& dialog) {
    EXPECT_NE(qobject_cast<QProgressDialog*>(&dialog), nullptr);
  };
  const auto readFault = [](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).accept(); };
  const ModalScript answers({FileChosen(Shown(file)), cancel, FileChosen("/proc/self/s01.gif"),
                             wait, readFault, FileChosen(Shown(file)), wait});
  QPushButton& save = Find<QPushButton>("butAnimateExport");
  save.click();
  EXPECT_EQ(folder_.EntryCount(), 0) << "cancelled";
  save.click();
  save.click();
  EXPECT_EQ(model::ReadFile(file).substr(0, 6), "GIF89a");
  EXPECT_TRUE(IsOn());
}

}  // namespace
}  // namespace orb::tests
