#include "support/boards.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTransform>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace orb::tests {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class EditingTest : public WindowTest {
 protected:
  QWidget& MapWidget() const { return Find<QWidget>("picMap"); }

  QPoint OnMap(float x, float y) const {
    return (QPointF(x, y) * QTransform::fromScale(MapWidget().width(), MapWidget().height()))
        .toPoint();
  }

  static const model::Province& Place(const char* name) {
    return RealMap()->Provinces[model::FindProvince(*RealMap(), name)];
  }

  /// Where a unit stands: for a coast that is on the water.
  QPoint At(const char* place) const { return OnMap(Place(place).UnitX, Place(place).UnitY); }

  QPoint Label(const char* place) const { return OnMap(Place(place).LabelX, Place(place).LabelY); }

  void Click(const char* place) const {
    QTest::mouseClick(&MapWidget(), Qt::LeftButton, {}, At(place));
  }

  /// As a mouse does it: a click, and its second press tells that it is double.
  void DoubleClick(const char* place) const {
    Click(place);
    QTest::mouseDClick(&MapWidget(), Qt::LeftButton, {}, At(place));
  }

  void Drag(QPoint from, QPoint to) const {
    QTest::mousePress(&MapWidget(), Qt::LeftButton, {}, from);
    for (const QPoint point : {(from + to) / 2, to}) {
      QMouseEvent move(QEvent::MouseMove, point, MapWidget().mapToGlobal(QPointF(point)),
                       Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(&MapWidget(), &move);
    }
    QTest::mouseRelease(&MapWidget(), Qt::LeftButton, {}, to);
  }

  void Drag(const char* from, const char* to) const { Drag(At(from), At(to)); }

  static QStringList Choices(const QMenu& menu) {
    QStringList texts;
    for (const QAction* entry : menu.actions())
      texts << entry->text();
    return texts;
  }

  /// Takes an entry of the menu that is open; "Power/unit" one of a menu in it.
  static void Choose(const QString& path) {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr) << path.toStdString();
    const QMenu* in = menu;
    for (const QString& text : path.split(QLatin1Char('/'))) {
      ASSERT_TRUE(Choices(*in).contains(text)) << text.toStdString();
      QAction* entry = in->actions().at(Choices(*in).indexOf(text));
      in = entry->menu();
      if (in == nullptr) entry->trigger();
    }
    menu->close();
  }

  std::string Status() const { return Find<QLabel>("lblStatus").text().toStdString(); }
  std::string Selected(const char* list) const {
    const auto items = Find<QListWidget>(list).selectedItems();
    return items.isEmpty() ? "" : items.constFirst()->text().toStdString();
  }
};

TEST_F(EditingTest, UnitsAreEditedOnTheMapAndEveryStepIsTakenBack) {
  const QImage start = Map();
  Enter("FRA A(Par) - Bur");
  Trigger("mnuGameEditUnits");
  EXPECT_TRUE(Find<QWidget>("fraEditUnits").isVisible());
  EXPECT_EQ(StagePanel(), "");
  const auto units = Lines("lstUnits");
  Drag("Par", "Bur");
  EXPECT_EQ(Selected("lstUnits"), "FRA A(Bur)  Burgundy");
  Drag("Bur", "Mun");
  EXPECT_EQ(Status(), "Munich (Mun) is occupied by GER A(Mun).");
  Drag("Bur", "NTH");
  EXPECT_EQ(Status(), "An army cannot stand in North Sea (NTH).");
  EXPECT_THAT(Lines("lstUnits"), Contains("FRA A(Bur)  Burgundy"));

  Click("Spa");
  Choose("France/Fleet, Spain (south coast)");
  EXPECT_EQ(Selected("lstUnits"), "FRA F(Spa.s)  Spain (south coast)");
  Drag(At("Spa.s"), Label("Spa.n"));
  EXPECT_EQ(Selected("lstUnits"), "FRA F(Spa.n)  Spain (north coast)");
  Click("NTH");
  Choose("France: Fleet");
  Drag(At("NTH"), At("Bul"));
  Choose("Bulgaria (south coast)");
  EXPECT_EQ(Selected("lstUnits"), "FRA F(Bul.s)  Bulgaria (south coast)");
  Press(Qt::Key_Delete);
  EXPECT_THAT(Lines("lstUnits"), Not(Contains(StartsWith("FRA F(Bul"))));
  EXPECT_EQ(Selected("lstUnits"), "GER A(Ber)  Berlin") << "the next one";
  auto& list = Find<QListWidget>("lstUnits");
  list.setCurrentRow(list.count() - 1);
  Press(Qt::Key_Delete);
  EXPECT_EQ(list.count(), static_cast<int>(units.size()));
  EXPECT_EQ(Selected("lstUnits"), Lines("lstUnits").back()) << "there is no next one";
  Press(Qt::Key_Z, Qt::ControlModifier);

  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_THAT(Lines("lstUnits"), Contains(StartsWith("FRA F(Bul.s)")));
  for (int i = 0; i < 5; ++i)
    Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Lines("lstUnits"), units);
  EXPECT_FALSE(Find<QPushButton>("butUnitsUndo").isEnabled());
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_THAT(Lines("lstUnits"), Contains("FRA A(Bur)  Burgundy"));
  Press(Qt::Key_Z, Qt::ControlModifier);
  Find<QListWidget>("lstUnits").clearSelection();
  Press(Qt::Key_O, Qt::AltModifier);
  EXPECT_EQ(StagePanel(), "fraOrders");
  EXPECT_THAT(Lines("lstOrders"), Contains("FRA A(Par) - Bur"));
  EXPECT_EQ(Map(), start);
  Trigger("mnuGameEditUnits");
  EXPECT_FALSE(Find<QAction>("mnuGameRedoEdit").isEnabled()) << "the editing had ended";
}

TEST_F(EditingTest, APropertiesDialogRefusesWhatCannotBe) {
  Trigger("mnuGameEditUnits");
  const auto choose = [](const QDialog& dialog, const char* box, const char* location) {
    auto* places = dialog.findChild<QComboBox*>(QLatin1String(box));
    places->setCurrentIndex(places->findData(QByteArray(location)));
  };
  {
    const ModalScript answers({[&](QDialog& dialog) {
      const auto* ok = dialog.findChild<QPushButton*>();
      choose(dialog, "cboLocation", "Mun");
      EXPECT_FALSE(ok->isEnabled());
      EXPECT_THAT(dialog.findChild<QLabel*>("lblFault")->text().toStdString(),
                  HasSubstr("occupied by GER A(Mun)"));
      dialog.findChild<QCheckBox*>()->setChecked(true);
      choose(dialog, "cboDislodgedFrom", "");
      EXPECT_EQ(dialog.findChild<QComboBox*>("cboDislodgedFrom")->currentText(), "not recorded");
      choose(dialog, "cboDislodgedFrom", "Ruh");
      choose(dialog, "cboPreviousLocation", "Bur");
      EXPECT_TRUE(ok->isEnabled());
      dialog.accept();
    }});
    DoubleClick("Par");
  }
  EXPECT_EQ(Selected("lstUnits"), "FRA A(Mun)  Munich, dislodged from Ruh");
  Click("Mun");
  EXPECT_EQ(Selected("lstUnits"), "GER A(Mun)  Munich");
  QTest::mouseClick(&MapWidget(), Qt::LeftButton, {}, Label("Mun"));
  EXPECT_EQ(Selected("lstUnits"), "FRA A(Mun)  Munich, dislodged from Ruh") << "beside its place";
  {
    const ModalScript answers({[&](QDialog& dialog) {
      dialog.findChild<QAbstractButton*>("optFleet")->click();
      EXPECT_FALSE(dialog.findChild<QPushButton*>()->isEnabled()) << "nowhere yet";
      choose(dialog, "cboLocation", "ECH");
      dialog.accept();
    }});
    Press(Qt::Key_Insert);
  }
  EXPECT_EQ(Selected("lstUnits"), "ENG F(ECH)  English Channel");
}

TEST_F(EditingTest, PanelsTakeTurnsWithoutAnEffectOnTheWindow) {
  window_->showNormal();
  window_->resize(900, 600);
  ASSERT_TRUE(QTest::qWaitFor([&] { return window_->height() == 600; }));
  for (const char* entry : {"mnuGameEditUnits", "mnuGameEditProvinces", "mnuGameEnterOrders"}) {
    Trigger(entry);
    QCoreApplication::processEvents();
    EXPECT_EQ(window_->size(), QSize(900, 600)) << entry;
  }
}

TEST_F(EditingTest, CentresAreGivenByAClickAndPropertiesOpenByTwo) {
  Trigger("mnuGameEditProvinces");
  EXPECT_TRUE(Find<QWidget>("picOwners").isVisible());
  Find<QAbstractButton>("optGiveFRA").click();
  Click("Bel");
  EXPECT_EQ(Selected("lstProvinces"), "Bel  Belgium \u2013 France");
  Click("Bur");
  EXPECT_EQ(Status(), "Burgundy (Bur) is not a supply centre.");
  {
    const ModalScript answers({[](QDialog& dialog) {
      EXPECT_EQ(dialog.findChild<QLabel*>("lblPartOf")->text(), "Part of: Germany");
      EXPECT_EQ(dialog.findChild<QComboBox*>()->currentText(), "Germany");
      dialog.findChild<QCheckBox*>()->setChecked(true);
      dialog.accept();
    }});
    DoubleClick("Mun");
  }
  EXPECT_EQ(Selected("lstProvinces"), "Mun  Munich \u2013 Germany, contested");
  Find<QAbstractButton>("optGiveNeutral").click();
  Find<QListWidget>("lstProvinces").setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(Selected("lstProvinces"), "Mun  Munich \u2013 Neutral, contested");
  for (int i = 0; i < 2; ++i)
    Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Selected("lstProvinces"), "Mun  Munich \u2013 Germany");
  Find<QAbstractButton>("optGiveFRA").click();
  Trigger("mnuMapViewOnly");
  Click("Hol");
  Trigger("mnuMapViewOnly");
  EXPECT_THAT(Lines("lstProvinces"), Contains("Hol  Holland \u2013 Neutral"));
  Click("Hol");
  EXPECT_THAT(Lines("lstProvinces"), Contains("Hol  Holland \u2013 France"));
}

}  // namespace
}  // namespace orb::tests
