#include "ui/letters/letters_commands.h"

#include "letters/correction.h"
#include "letters/received.h"

#include "model/errors.h"
#include "model/files.h"
#include "render/qt/map_file.h"
#include "session/files_beside.h"
#include "text/encoding.h"
#include "text/qt/text_codec.h"
#include "ui/letters/letters_dialog.h"
#include "ui/letters/received_dialog.h"
#include "ui/letters/text_view.h"
#include "ui/output/file_dialogs.h"
#include "ui/output/file_proposals.h"
#include "ui/session/attempt.h"
#include "ui/widgets/controls.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QVBoxLayout>

#include <algorithm>
#include <system_error>

namespace orb::ui {
namespace {

namespace fs = std::filesystem;

/// Wide enough for a mail, and a third of the bytes of a whole map.
constexpr int SavedMapWidth = 1000;
constexpr QSize NoticeSize(640, 420);

void showNotice(const std::string& notice, QWidget* window) {
  QDialog dialog(window);
  dialog.setObjectName(QStringLiteral("frmCorrection"));
  dialog.setWindowTitle(text::ToQString(model::ProgramName) + QObject::tr(" Compare"));
  QPlainTextEdit* view = newTextView(QStringLiteral("txtCorrection"), QObject::tr("The notice"));
  view->setPlainText(text::ToQString(notice));
  QDialogButtonBox* buttons = newCloseButtons(dialog, QObject::tr("Letters"));
  QPushButton* copy = newButton(QStringLiteral("butCorrectionCopy"), QObject::tr("Cop&y"));
  buttons->addButton(copy, QDialogButtonBox::ActionRole);
  QObject::connect(copy, &QPushButton::clicked, view,
                   [view] { QGuiApplication::clipboard()->setText(view->toPlainText()); });
  auto* rows = new QVBoxLayout(&dialog);
  rows->addWidget(view);
  rows->addWidget(buttons);
  dialog.resize(NoticeSize);
  dialog.exec();
}

}  // namespace

LettersCommands::LettersCommands(Desk& desk, model::Messages& messages, QWidget* window)
    : QObject(window), m_desk(desk), m_messages(messages), m_window(window) {}

QImage LettersCommands::mapOf(const letters::Letter& letter, int width) {
  const settings::MapOptions options{m_desk.view().mapOptions.Mode, false, true, true};
  return render::MapImage(m_desk.game(), options, m_desk.dataDirectory(), width, m_pictures,
                          letter.Orders);
}

void LettersCommands::showLetters() {
  m_desk.endTrial();
  attempt(m_messages, [this] {
    const std::vector<letters::Letter> all =
        letters::Letters(session::ToldByFilesBeside(m_desk.now()));
    if (all.empty()) throw model::FatalError("There is nobody to write to: the board is empty.");
    QStringList names;
    for (const letters::Letter& letter : all) {
      const int power = model::FindCountry(letter.Power);
      names.append(text::ToQString(m_desk.game().Countries[power].Name));
    }
    LettersDialog dialog(
        all, names,
        [this](const letters::Letter& letter, int width) { return mapOf(letter, width); },
        m_window);
    connect(&dialog, &LettersDialog::savingWanted, this, [&] { saveLetters(all, dialog); });
    dialog.exec();
  });
}

void LettersCommands::saveLetters(const std::vector<letters::Letter>& letters,
                                  LettersDialog& dialog) {
  const auto folder = askFolder(&dialog, tr(" Letters"), m_desk);
  if (!folder) return;
  attempt(m_messages, [&] {
    const auto fileOf = [&](const letters::Letter& letter, std::string_view extension) {
      std::string suffix = "_letter_" + letter.Power;
      return *folder / proposedExportFile(m_desk.game(), suffix.append(extension));
    };
    std::error_code ignored;
    const bool isTaken = std::ranges::any_of(letters, [&](const letters::Letter& letter) {
      return fs::exists(fileOf(letter, ".txt"), ignored) ||
             fs::exists(fileOf(letter, ".png"), ignored);
    });
    if (isTaken && !m_messages.Warn("There are letters of this season in " + folder->string() +
                                    ".\rReplace them?")) {
      return;
    }
    for (const letters::Letter& letter : letters) {
      model::ReplaceFile(fileOf(letter, ".txt"), text::ToUtf8(letter.Text));
      const settings::MapOptions options{m_desk.view().mapOptions.Mode, false, true, true};
      model::ReplaceFile(
          fileOf(letter, ".png"),
          render::MapBytes(m_desk.game(), options, m_desk.dataDirectory(), SavedMapWidth,
                           m_pictures, render::MapFormat::Png, letter.Orders));
    }
    const QString note = tr("The letters are in %1.").arg(displayPath(folder->string()));
    dialog.setNote(note);
    emit noted(note);
  });
}

void LettersCommands::showReceived() {
  attempt(m_messages, [this] {
    const std::string& game = m_desk.game().FileName;
    std::vector<letters::Receipt> receipts;
    if (!game.empty()) receipts = letters::ReadRegister(game);
    if (receipts.empty()) {
      return m_messages.Show(game.empty()
                                 ? "A game that was never saved has no register of received orders."
                                 : "Nothing was pasted or imported for this game yet.",
                             model::Icon::Information);
    }
    ReceivedDialog(std::move(receipts), displayPath(letters::RegisterOf(game).string()), m_window)
        .exec();
  });
}

void LettersCommands::compareWithFile() {
  const auto file = askGameToCompare(m_window, m_desk);
  if (!file) return;
  m_desk.endTrial();
  attempt(m_messages, [&] {
    session::Situation other{model::EmptyGame(m_desk.game().Map)};
    if (!session::ReadGame(other, *file, m_messages)) return;
    showNotice(letters::CorrectionNotice(session::ToldByFilesBeside(std::move(other)),
                                         session::ToldByFilesBeside(m_desk.now())),
               m_window);
  });
}

}  // namespace orb::ui
