#include "model/files.h"
#include "model/game_file.h"
#include "support/boards.h"
#include "text/qt/text_codec.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;

// Markup, the key of a caption, the place of a title's mark, the column of keys, and an argument.
const QString Hostile = QStringLiteral("<img src=zero> &x [*]\t%1");

/// Every text of a window that Qt shows, as it would be seen.
class Sight {
 public:
  void Look(QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>())
      LookAt(*widget);
    LookAt(window);
    for (const QAction* action : window.findChildren<QAction*>())
      LookAt(*action);
  }

  /// What was seen of hostile texts, and is to be seen as it was written.
  const std::set<std::string>& Seen() const { return seen_; }

 private:
  void LookAt(QWidget& widget) {
    Tip(widget, widget.toolTip());
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
      label->ensurePolished();
      EXPECT_NE(label->textFormat(), Qt::AutoText) << label->text().toStdString();
      // Links are the program's own, and nothing from outside stands in them.
      const bool isRich = label->textFormat() != Qt::PlainText;
      EXPECT_FALSE(isRich && label->text().contains("<img")) << label->text().toStdString();
      See("label", label->text());
    }
    if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) LookAt(*view);
    EXPECT_TRUE(widget.statusTip().isEmpty() && widget.whatsThis().isEmpty());
  }

  void LookAt(QAbstractItemView& view) {
    const QAbstractItemModel* model = view.model();
    for (int row = 0; model != nullptr && row < model->rowCount(); ++row) {
      for (int column = 0; column < model->columnCount(); ++column) {
        const QModelIndex index = model->index(row, column);
        See("item", index.data().toString());
        Tip(view, index.data(Qt::ToolTipRole).toString());
      }
    }
  }

  void LookAt(const QAction& action) {
    if (!action.text().contains(QLatin1String("img"))) return;
    QString shown = action.text().replace(QLatin1String("&&"), QLatin1String("\x01"));
    EXPECT_LE(shown.count('&'), 1) << shown.toStdString();
    EXPECT_LE(shown.indexOf('&'), 0) << "a letter of the name is a key: " << shown.toStdString();
    EXPECT_FALSE(shown.contains('\t')) << "the name has a column of keys";
    See("action", shown.remove('&').replace('\x01', '&'));
    Tip(*qobject_cast<QWidget*>(action.parent()), action.toolTip());
  }

  void Tip(QWidget& widget, const QString& text) {
    if (text.isEmpty()) return;
    QToolTip::showText({}, text, &widget);
    for (QWidget* shown : QApplication::topLevelWidgets()) {
      if (!shown->inherits("QTipLabel") || !shown->isVisible()) continue;
      EXPECT_EQ(qobject_cast<QLabel*>(shown)->textFormat(), Qt::PlainText) << text.toStdString();
      See("tip", text);
    }
    QToolTip::hideText();
  }

  void See(const char* where, const QString& text) {
    if (text.contains(QLatin1String("<img")))
      seen_.insert((QLatin1String(where) + QLatin1String(": ") + text).toStdString());
  }

  std::set<std::string> seen_;
};

class PlainTextTest : public WindowTest {
 protected:
  /// A game in which every text that may be anything is hostile, under a hostile name.
  fs::path Game() const {
    const std::string hostile = *text::ToBytes(Hostile);
    model::GameState game = Starting();
    game.Title = hostile;
    game.TextLines.Append(hostile);
    for (model::Country& country : game.Countries)
      country.PlayerName = hostile;
    game.OrdersList = {"FRA A(Par) - Bur", "ENG F(" + hostile + ") hold"};
    return directory_.Write(Hostile.toStdString() + ".orb", model::FormatGameFile(game));
  }

  ModalScript::Step Looked() {
    return [this](QDialog& dialog) {
      sight_.Look(dialog);
      dialog.reject();
    };
  }

  void LookAtDialogs(const char* action, std::deque<ModalScript::Step> steps) {
    const ModalScript answers(std::move(steps));
    Trigger(action);
  }

  Sight sight_;

 private:
  model::GameState Starting() const {
    model::GameState game = EmptyBoard("Spring", "moves");
    game.Units.Append({"FRA", "A", "Par", {}, {}, {}});
    game.Units.Append({"ENG", "F", "Lon", {}, {}, {}});
    return game;
  }
};

TEST_F(PlainTextTest, WhatComesFromOutsideIsShownAsItStands) {
  const fs::path file = Game();
  Open(file);
  EXPECT_EQ(window_->windowHandle()->title(), Titled((" " + Hostile).toUtf8().constData()));
  emit Find<QMenu>("mnuFileRecent").aboutToShow();
  Find<QLineEdit>("txtOrder").setText(Hostile);
  sight_.Look(*window_);

  LookAtDialogs("mnuGameEditSeason", {Looked()});
  const auto chooseMissing = [&](QDialog& dialog) {
    auto* name = dialog.findChild<QLineEdit*>();
    name->setText("/none/" + Hostile);
    // Not at once: the box that comes up is a step of its own.
    QTimer::singleShot(0, name, [&dialog, name] {
      QTest::keyClick(name, Qt::Key_Return);
      dialog.reject();
    });
  };
  LookAtDialogs("mnuFileOpen", {chooseMissing, Looked()});
  LookAtDialogs("mnuFileSaveAs",
                {FileChosen(QString::fromStdString(file.string())), Looked(), Looked()});

  QApplication::clipboard()->setText("Dear " + Hostile + "\nFRA:\nA Par - Bur (" + Hostile + ")\n");
  LookAtDialogs("mnuEditPasteOrders", {Looked()});
  {
    const ModalScript answers({Looked()});
    Press(Qt::Key_R, Qt::AltModifier);
  }
  Find<QListWidget>("lstOrders").setCurrentRow(0);
  Press(Qt::Key_D, Qt::AltModifier);
  {
    const ModalScript answers({Looked(), Looked()});
    window_->close();
    window_->keepAll();
    Open();
    window_->offerRecovery();
  }
  const auto seen = [](const char* where, const QString& text) {
    return (QLatin1String(where) + text).toStdString();
  };
  QString inMenu = Hostile + ".orb";
  inMenu.replace('\t', ' ');
  const QString path = QString::fromStdString(file.string());
  for (const std::string& text :
       {seen("action: 1  ", inMenu), seen("tip: ", path), seen("label: ", path),
        seen("label: ", path + " already exists.\nReplace it?"),
        seen("item: ", "ENG F(" + Hostile + ") hold"),
        seen("label: ",
             Hostile + ", Spring 1901 has changes that are not saved.\nSave them before closing?")})
    EXPECT_THAT(sight_.Seen(), Contains(text));
  EXPECT_THAT(sight_.Seen(), Contains(AllOf(HasSubstr("ORB ended"), HasSubstr("<img"))));
}

}  // namespace
}  // namespace orb::tests
