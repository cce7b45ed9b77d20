#include "ui/help/help_window.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

#include <map>

namespace orb::tests {
namespace {

TEST_F(WindowTest, EveryDialogHasHelpOfItsOwn) {
  QApplication::clipboard()->setText(QStringLiteral("FRA A Par - Bur"));
  for (const char* entry :
       {"mnuGameEditSeason", "mnuGameColours", "mnuEditPasteOrders", "mnuFileOrderSheets",
        "mnuFileOpen", "mnuFileSaveAs", "mnuFileImportOrders", "mnuFileExportText"}) {
    bool helped = false;
    const ModalScript answers({[&](QDialog& dialog) {
      for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().remove(QLatin1Char('&')) == QLatin1String("Help")) button->click();
      }
      const auto* help = dialog.findChild<ui::HelpWindow*>();
      helped = help != nullptr && help->isVisible();
      dialog.reject();
    }});
    Trigger(entry);
    EXPECT_TRUE(helped) << entry;
  }
}

TEST_F(WindowTest, TheQuestionAboutAUnitReadsYesNoYesToAll) {
  std::map<int, QString> captions;
  const ModalScript answers({[&](QDialog& box) {
    EXPECT_EQ(box.windowTitle(), Titled());
    for (const QPushButton* button : box.findChildren<QPushButton*>())
      captions[button->x()] = button->text();
    box.reject();
  }});
  Press(Qt::Key_R, Qt::AltModifier);
  QStringList row;
  for (const auto& [x, caption] : captions)
    row << caption;
  EXPECT_EQ(row.join(QLatin1Char(' ')).toStdString(), "&Yes &No Yes to &all");
  EXPECT_EQ(StagePanel(), "fraOrders");
  Trigger("mnuFileBlank");
  EXPECT_EQ(Find<QLabel>("lblOrdersMissing").text(), "No units");
}

}  // namespace
}  // namespace orb::tests
