#include "model/files.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QColorDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gmock/gmock.h>

namespace orb::tests {
namespace {

using testing::HasSubstr;

class ColoursDialogTest : public WindowTest {
 protected:
  /// Lets the colour dialog's button open its chooser, and goes on in the dialog afterwards.
  static ModalScript::Step Press(const char* button) {
    return [button](QDialog& dialog) {
      auto* pressed = dialog.findChild<QPushButton*>(QLatin1String(button));
      QTimer::singleShot(0, pressed, &QPushButton::click);
    };
  }

  /// Takes a colour in the chooser, checks that something holds at once, and accepts or cancels.
  ModalScript::Step Take(const QColor& colour, bool accept) const {
    return [this, colour, accept](QDialog& dialog) {
      auto* chooser = qobject_cast<QColorDialog*>(&dialog);
      ASSERT_NE(chooser, nullptr);
      const QImage before = Map();
      chooser->setCurrentColor(colour);
      EXPECT_NE(Map(), before) << "the map follows at once";
      chooser->parent()->setProperty("handled", false);
      accept ? chooser->accept() : chooser->reject();
      chooser->parentWidget()->activateWindow();
    };
  }

  /// Expects a warning, then presses a button of the dialog.
  static ModalScript::Step Warned(const QString& warning, const QString& button) {
    return [=](QDialog& dialog) {
      EXPECT_EQ(dialog.findChild<QLabel*>("lblAlike")->text().toStdString(), warning.toStdString());
      for (auto* candidate : dialog.findChildren<QPushButton*>()) {
        if (candidate->text().remove(QLatin1Char('&')) != button) continue;
        dialog.setProperty("handled", false);
        return candidate->click();
      }
      ADD_FAILURE() << "no button " << button.toStdString();
      dialog.reject();
    };
  }

  void Run(std::deque<ModalScript::Step> steps) const {
    const ModalScript script(std::move(steps));
    Trigger("mnuGameColours");
  }
};

const QString NoWarning = QStringLiteral("Everybody can tell the powers apart.");
const QString NearFrance = QStringLiteral("Hard to tell apart:\nEngland and France: for everybody");

TEST_F(ColoursDialogTest, CancelAndDefaultsRestoreAndOkKeeps) {
  // The window settles before its map is compared.
  QCoreApplication::processEvents();
  const QImage before = Map();
  Run({Press("butFillENG"), Take(QColor(40, 109, 204), true), Warned(NearFrance, "Cancel")});
  EXPECT_EQ(Map(), before);
  Run({Press("butFillENG"), Take(QColor(1, 2, 3), false), Warned(NoWarning, "OK")});
  EXPECT_EQ(Map(), before) << "the chooser was cancelled";
  Run({Press("butFillENG"), Take(QColor(41, 109, 204), true), Warned(NearFrance, "Defaults"),
       Warned(NoWarning, "OK")});
  EXPECT_EQ(Map(), before);

  // Two blues that differ in red alone.
  const QString forSome =
      "Hard to tell apart:\nEngland and France: for red-blind, green-blind eyes";
  Run({Press("butFillENG"), Take(QColor(60, 68, 188), true), Warned(forSome, "OK")});
  const QImage chosen = Map();
  EXPECT_NE(chosen, before);
  for (const char* command : {"mnuFileBlank", "mnuFileNew"})
    Trigger(command);
  EXPECT_EQ(Map(), chosen);
  Resolve("ENG F(Lon)");
  Trigger("mnuGameUndo");
  EXPECT_EQ(Map(), chosen);

  {
    const ModalScript answers({Pressed("frmClosing", QMessageBox::Discard)});
    window_->close();
  }
  EXPECT_THAT(model::ReadFile(program_.Path() / "orb.ini"), HasSubstr("\r\n12338236,"));
  Open(examples_ / "1901-2-autumn-0-start.orb");
  const QImage opened = Map();
  Run({Warned(forSome, "Defaults"), Warned(NoWarning, "OK")});
  EXPECT_NE(Map(), opened);
}

}  // namespace
}  // namespace orb::tests
