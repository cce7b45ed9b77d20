#include "model/files.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <gmock/gmock.h>

namespace orb::tests {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class SettingsTest : public WindowTest {
 protected:
  std::string File() const { return model::ReadFile(program_.Path() / "orb.ini"); }

  /// The map menu's entries that are checked, of those in the settings file.
  std::string Checked() const {
    QStringList names;
    for (const QAction* entry : Find<QMenu>("mnuMap").actions()) {
      const bool isSetting = entry->objectName() != QLatin1String("mnuMapShowHistory");
      if (entry->isChecked() && isSetting) names << entry->objectName().mid(3);
    }
    return names.join(QLatin1Char(' ')).toStdString();
  }
};

TEST_F(SettingsTest, AreKeptFromOneStartToTheNext) {
  EXPECT_EQ(Checked(), "MapColour3D");
  for (const char* entry :
       {"mnuMapGrey", "mnuShowCentreCount", "mnuShowCentreOwners", "mnuMapTintByOwner"})
    Trigger(entry);
  EXPECT_EQ(Checked(), "MapGrey ShowCentreCount ShowCentreOwners MapTintByOwner");
  window_->close();
  EXPECT_THAT(File(), StartsWith("\"Grey\"\r\n\"Show centre count\"\r\n\"Don't show centre "
                                 "owners\"\r\n\"Edit\"\r\n"));
  Open();
  EXPECT_EQ(Checked(), "MapGrey ShowCentreCount MapTintByOwner");
  Trigger("mnuMapTintByOwner");
  Trigger("mnuMapColourBordersByOwner");
  Trigger("mnuMapViewOnly");
  window_->close();
  EXPECT_THAT(File(), HasSubstr("\"Show centre owners\"\r\n\"View only\"\r\n"));
  Open();
  EXPECT_EQ(Checked(), "MapGrey ShowCentreCount MapColourBordersByOwner MapViewOnly");
}

TEST_F(SettingsTest, OldAndBrokenFilesAreTakenAsFarAsTheyGo) {
  const std::vector<std::pair<std::string, std::string>> cases{
      {"\"Colour\"\r\n\"Show centre count\"\r\n\"Show centre owners\"\r\n",
       "MapColour ShowCentreCount MapColourBordersByOwner"},
      {"\"Plaid\"\r\n\"\"\r\n\"\"\r\n\"View only\"\r\nx,y\r\n", "MapBlackWhite MapViewOnly"},
      {std::string("\"Gr\0\xff", 5), "MapColour3D"},
      {"", "MapColour3D"}};
  for (const auto& [bytes, checked] : cases) {
    program_.Write("orb.ini", bytes);
    Open();
    EXPECT_EQ(Checked(), checked) << bytes;
  }
}

TEST_F(SettingsTest, ViewOnlyLeavesTheMapAlone) {
  window_->showNormal();
  window_->resize(790, 640);
  ASSERT_TRUE(QTest::qWaitFor([&] { return window_->width() == 790; }));
  const int normal = window_->width();
  const auto& column = Find<QWidget>("tabFacts");
  const auto& map = Find<QWidget>("picMap");
  QApplication::clipboard()->setText(QStringLiteral("FRA A Par - Bur"));
  const auto takesOrders = [this] {
    return Find<QAction>("mnuFileImportOrders").isEnabled() &&
           Find<QAction>("mnuEditPasteOrders").isEnabled();
  };
  EXPECT_TRUE(takesOrders());
  Trigger("mnuMapViewOnly");
  EXPECT_FALSE(Find<QAction>("mnuFileImportOrders").isEnabled() ||
               Find<QAction>("mnuEditPasteOrders").isEnabled());
  EXPECT_FALSE(column.isVisible());
  EXPECT_FALSE(Find<QMenu>("mnuGame").isEnabled());
  EXPECT_LT(window_->width(), normal);
  EXPECT_NEAR(window_->width(), map.width(), 40);
  Trigger("mnuMapViewOnly");
  EXPECT_TRUE(column.isVisible());
  EXPECT_TRUE(Find<QMenu>("mnuGame").isEnabled() && takesOrders());
  EXPECT_EQ(window_->width(), normal);

  Trigger("mnuMapViewOnly");
  window_->close();
  Open();
  EXPECT_NEAR(window_->width(), Find<QWidget>("picMap").width(), 40);
  Trigger("mnuMapViewOnly");
  EXPECT_EQ(window_->width(), normal) << "though it was closed narrow";
}

TEST_F(SettingsTest, SizeZoomAndFilesAreRemembered) {
  Trigger("mnuMapZoom100");
  Trigger("mnuMapZoomIn");
  EXPECT_EQ(Find<QWidget>("picMap").width(), 1250);
  // Newer versions of Qt restore no window that is larger than the screen, here of 800 by 800.
  window_->resize(780, 700);
  window_->close();
  Open(examples_ / "1901-2-autumn-0-start.orb");
  EXPECT_EQ(window_->size(), QSize(780, 700));
  EXPECT_EQ(Find<QWidget>("picMap").width(), 1250);
  Trigger("mnuMapZoomFit");
  EXPECT_LE(Find<QWidget>("picMap").width(), Find<QWidget>("scrMap").width());

  Trigger("mnuFileNew");
  EXPECT_EQ(Find<QLabel>("lblFileName").text(), "");
  const auto recent = [this](const char* entry) {
    emit Find<QMenu>("mnuFileRecent").aboutToShow();
    return Find<QAction>(entry).text().toStdString();
  };
  EXPECT_EQ(recent("mnuFileRecent1"), "&1  1901-2-autumn-0-start.orb");
  Trigger("mnuFileRecent1");
  EXPECT_THAT(Find<QLabel>("lblFileName").text().toStdString(),
              HasSubstr("1901-2-autumn-0-start.orb"));

  const auto copy = directory_.Path() / "1901-2-autumn-0-start.orb";
  std::filesystem::copy_file(examples_ / copy.filename(), copy);
  Open(copy);
  EXPECT_THAT(recent("mnuFileRecent1"), EndsWith("start.orb  in " + directory_.Path().string()));
  EXPECT_THAT(recent("mnuFileRecent2"), EndsWith("start.orb  in " + examples_.string()));
  std::filesystem::remove(copy);
  Trigger("mnuFileNew");
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    recent("mnuFileRecent1");
    const ModalScript answers({Pressed("frmRecentFile", answer)});
    Trigger("mnuFileRecent1");
  }
  EXPECT_EQ(Find<QLabel>("lblFileName").text(), "");
  EXPECT_EQ(recent("mnuFileRecent1"), "&1  1901-2-autumn-0-start.orb") << "the other one";
}

TEST_F(SettingsTest, WhatIsDroppedOnTheWindowIsOpenedOrRead) {
  const auto dropData = [this](const QMimeData& data) {
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &enter);
    QDropEvent event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window_.get(), &event);
    QTest::qWait(1);
    return enter.isAccepted();
  };
  const auto drop = [&](const std::filesystem::path& file) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
    return dropData(data);
  };
  QMimeData text;
  text.setText(QStringLiteral("ENG\nF Lon - NTH\n"));
  const auto expect = [](const char* title) {
    return ModalScript::Step([title](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), Titled(title));
      dialog.accept();
    });
  };
  {
    const ModalScript answers({expect(" Paste Orders"), expect(" Import Orders")});
    dropData(text);
    drop(directory_.Write("Orders.TXT", "FRA\nA Par - Bur\n"));
  }
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("ENG F(Lon) - NTH", "FRA A(Par) - Bur"));
  drop(examples_ / "1902-1-spring-2-retreats.orb");
  EXPECT_NE(StagePanel(), "fraOrders");
  const std::string panel = StagePanel();
  const ModalScript answers({[](QDialog& box) { box.reject(); }});
  drop(program_.Path() / "map.bmp");
  EXPECT_EQ(StagePanel(), panel) << "no game: all stays";
  EXPECT_FALSE(dropData(text)) << "a finished season takes no orders";
}

}  // namespace
}  // namespace orb::tests
