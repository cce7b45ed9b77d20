#include "ui/recovery/recovery_question.h"

#include "model/errors.h"
#include "model/files.h"
#include "text/qt/text_codec.h"
#include "ui/recovery/recovery_copy.h"
#include "ui/widgets/game_name.h"
#include "ui/widgets/message_boxes.h"

#include <QLocale>
#include <QPushButton>

namespace orb::ui {
namespace {

enum class Wish { Recover, Discard, Later };

QString questionAbout(const RecoveryCopy& copy) {
  const model::GameState& game = copy.situation.Game;
  QString text = QObject::tr("ORB ended before this game was saved:\n\n%1\nof %2")
                     .arg(gameName(game), QLocale().toString(copy.time, QLocale::LongFormat));
  if (!game.FileName.empty()) text += QLatin1Char('\n') + displayText(game.FileName);
  return text;
}

Wish ask(const RecoveryCopy& copy, QWidget* window) {
  MessageBox box(questionAbout(copy), QMessageBox::Question, window);
  box.setObjectName(QStringLiteral("frmRecovery"));
  QPushButton* recover = box.addButton(QObject::tr("&Recover"), QMessageBox::AcceptRole);
  const QPushButton* discard = box.addButton(QObject::tr("&Discard"), QMessageBox::DestructiveRole);
  QPushButton* later = box.addButton(QObject::tr("&Later"), QMessageBox::RejectRole);
  box.setDefaultButton(recover);
  // Closing the box must not lose anything.
  box.setEscapeButton(later);
  box.exec();
  if (box.clickedButton() == recover) return Wish::Recover;
  return box.clickedButton() == discard ? Wish::Discard : Wish::Later;
}

std::optional<RecoveryCopy> read(const std::filesystem::path& file, const model::GameState& base) {
  try {
    return parseRecoveryCopy(model::ReadFile(file), base);
  } catch (const model::FatalError&) {
    // Nobody misses what cannot be read, and the window is wanted all the same.
    return std::nullopt;
  }
}

}  // namespace

void offerRecovery(Desk& desk, RecoveryKeeper& keeper, const std::filesystem::path& folder,
                   QWidget* window) {
  if (folder.empty()) return;
  std::vector<LockedCopy> copies = RecoveryFolder(folder).leftBehind();
  for (LockedCopy& left : copies) {
    const auto copy = read(left.file(), desk.game());
    if (!copy) continue;
    const Wish wish = ask(*copy, window);
    if (wish == Wish::Discard) left.remove();
    if (wish != Wish::Recover) continue;
    // The window's own copy takes the place of this one.
    if (desk.recoverGame(copy->situation) && keeper.keepNow()) left.remove();
    return;
  }
}

}  // namespace orb::ui
