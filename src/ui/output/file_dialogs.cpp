#include "ui/output/file_dialogs.h"

#include "model/files.h"
#include "orders/exchange/order_files.h"
#include "text/qt/text_codec.h"
#include "ui/output/file_proposals.h"
#include "ui/widgets/help_request.h"
#include "ui/widgets/message_boxes.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>
#include <QUrl>

#include <algorithm>
#include <functional>
#include <iterator>

namespace orb::ui {
namespace {

/// Qt's own dialog: those of the desktops take neither the texts of the filters as they stand nor
/// a further box.
void setUp(QFileDialog& dialog, const QString& title, const QStringList& filters,
           const Desk& desk) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setWindowTitle(text::ToQString(model::ProgramName) + title);
  dialog.setNameFilters(filters);
  if (auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) {
    // All are of one type; when they were written tells them apart.
    files->header()->hideSection(2);
    files->header()->setStretchLastSection(true);
  }
  if (!desk.folder().empty()) dialog.setDirectory(displayPath(desk.folder().string()));
  offerHelp(dialog, QObject::tr("Files"));
  // With large letters it would reach beyond a small screen.
  dialog.resize(dialog.size().boundedTo(dialog.screen()->availableSize() * 0.9));
}

QString allFiles() {
  return QObject::tr("All files: *.* (*)");
}

QString textFiles() {
  return QObject::tr("Text files: *.txt (*.txt)");
}

QString webPages() {
  return QObject::tr("Web pages: *.html (*.html)");
}

QString mailFiles() {
  return QObject::tr("Mails: *.eml, *.mbox (*.eml *.mbox)");
}

void setUpForGames(QFileDialog& dialog, const QString& title, const Desk& desk) {
  const QStringList filters{QObject::tr("Concordat files: *.orb (*.orb)"),
                            QObject::tr("Data files: *.dat (*.dat)"), allFiles()};
  setUp(dialog, title, filters, desk);
  dialog.selectNameFilter(filters[static_cast<qsizetype>(gameFilterFor(desk.game().FileName))]);
}

std::filesystem::path pathOf(const QString& file) {
  return QFile::encodeName(file).toStdString();
}

std::filesystem::path chosenFile(const QFileDialog& dialog) {
  return pathOf(dialog.selectedFiles().constFirst());
}

bool mayReplace(const std::filesystem::path& file, QWidget* parent) {
  MessageBox box(QObject::tr("%1 already exists.\nReplace it?").arg(displayPath(file.string())),
                 QMessageBox::Warning, parent);
  box.setObjectName(QStringLiteral("frmReplaceFile"));
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  // An Enter too many must not cost a file.
  box.setDefaultButton(QMessageBox::No);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes;
}

/// Whether the file may be written as far as the user is concerned.
bool mayWrite(const std::filesystem::path& file, QWidget* parent, model::Messages& messages) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(file.parent_path(), ignored)) {
    messages.Show("There is no folder " + file.parent_path().string() + ".",
                  model::Icon::Exclamation);
    return false;
  }
  return !std::filesystem::exists(file, ignored) || mayReplace(file, parent);
}

/// Asks until a file may be written or the dialog is cancelled. `written` turns the name as it was
/// typed into the one that is written.
std::optional<std::filesystem::path> askForNewFile(
    QFileDialog& dialog, const std::string& proposal, model::Messages& messages,
    const std::function<std::filesystem::path(const std::filesystem::path&)>& written) {
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  // The mode brings buttons of its own in place of all others.
  addHelpButton(dialog);
  dialog.setFileMode(QFileDialog::AnyFile);
  // The dialog would ask about the name as typed, which is not always the one written.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  // With its folder: alone, Qt would take some names for those of other places.
  dialog.selectFile(dialog.directory().absolutePath() + QLatin1Char('/') +
                    text::ToQString(proposal));
  while (dialog.exec() == QDialog::Accepted) {
    std::filesystem::path file = written(chosenFile(dialog));
    if (mayWrite(file, dialog.parentWidget(), messages)) return file;
  }
  return std::nullopt;
}

/// One of the files that there are.
std::optional<std::filesystem::path> oneThatIs(QFileDialog& dialog) {
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return chosenFile(dialog);
}

/// What the dialog of an export says and proposes.
struct ExportTexts {
  QString title;
  QString filter;
  std::string proposal;
};

ExportTexts textsOf(ExportKind kind, const model::GameState& game) {
  switch (kind) {
    case ExportKind::Bitmap:
      return {QObject::tr(" Export Bitmap"), QObject::tr("Bitmap files: *.bmp (*.bmp)"),
              proposedExportFile(game, ".bmp")};
    case ExportKind::Animation:
      return {QObject::tr(" Export Animation"), QObject::tr("GIF pictures: *.gif (*.gif)"),
              proposedExportFile(game, ".gif")};
    case ExportKind::Page:
      return {QObject::tr(" Publish"), webPages(), proposedExportFile(game, ".html")};
    case ExportKind::Sheet:
      return {QObject::tr(" Order Sheets"), webPages(),
              proposedExportFile(game, "_order_sheet.html")};
    case ExportKind::Orders:
      return {QObject::tr(" Export Orders"), textFiles(), exchange::ProposedOrdersFile(game)};
    default:
      return {QObject::tr(" Export Text"), textFiles(), proposedExportFile(game, ".txt")};
  }
}

}  // namespace

std::optional<OpenChoice> askGameToOpen(QWidget* parent, const Desk& desk) {
  QFileDialog dialog(parent);
  setUpForGames(dialog, QObject::tr(" Open"), desk);
  dialog.setFileMode(QFileDialog::ExistingFile);
  auto* readOnly = new QCheckBox(QObject::tr("Open as &read-only"), &dialog);
  readOnly->setObjectName(QStringLiteral("chkReadOnly"));
  // Qt offers no place for a further box. If its layout changes, the box is missing and all else
  // works.
  if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
    grid->addWidget(readOnly, grid->rowCount(), 1);
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return OpenChoice{chosenFile(dialog), readOnly->isChecked()};
}

std::optional<std::filesystem::path> askGameToCompare(QWidget* parent, const Desk& desk) {
  QFileDialog dialog(parent);
  setUpForGames(dialog, QObject::tr(" Compare"), desk);
  return oneThatIs(dialog);
}

std::optional<std::filesystem::path> askOrdersToImport(QWidget* parent, const Desk& desk) {
  QFileDialog dialog(parent);
  setUp(dialog, QObject::tr(" Import Orders"), {textFiles(), mailFiles(), allFiles()}, desk);
  return oneThatIs(dialog);
}

std::vector<std::filesystem::path> askGamesToAnimate(QWidget* parent, const Desk& desk) {
  QFileDialog dialog(parent);
  setUpForGames(dialog, QObject::tr(" Animate"), desk);
  dialog.setFileMode(QFileDialog::ExistingFiles);
  std::vector<std::filesystem::path> files;
  if (dialog.exec() != QDialog::Accepted) return files;
  const QStringList chosen = dialog.selectedFiles();
  std::transform(chosen.begin(), chosen.end(), std::back_inserter(files), pathOf);
  return files;
}

std::optional<std::filesystem::path> askWhereToSave(QWidget* parent, const Desk& desk,
                                                    model::Messages& messages) {
  QFileDialog dialog(parent);
  setUpForGames(dialog, QObject::tr(" Save As"), desk);
  return askForNewFile(dialog, proposedGameFile(desk.game()), messages, model::LowerCaseName);
}

ChangedFileChoice askAboutChangedFile(QWidget* parent, const std::filesystem::path& file) {
  const QString text = QObject::tr(
      "%1 was changed by another program since it was opened.\n"
      "Replace it with this game?");
  MessageBox box(text.arg(displayPath(file.string())), QMessageBox::Warning, parent);
  box.setObjectName(QStringLiteral("frmChangedFile"));
  const auto* replace = box.addButton(QObject::tr("&Replace"), QMessageBox::DestructiveRole);
  const auto* saveAs = box.addButton(QObject::tr("Save &as..."), QMessageBox::AcceptRole);
  box.setDefaultButton(box.addButton(QMessageBox::Cancel));
  box.exec();
  if (box.clickedButton() == replace) return ChangedFileChoice::Replace;
  return box.clickedButton() == saveAs ? ChangedFileChoice::SaveAs : ChangedFileChoice::Cancel;
}

std::optional<std::filesystem::path> askWhereToExport(QWidget* parent, ExportKind kind,
                                                      const Desk& desk,
                                                      const model::GameState& game,
                                                      model::Messages& messages) {
  const ExportTexts texts = textsOf(kind, game);
  QFileDialog dialog(parent);
  setUp(dialog, texts.title, {texts.filter, allFiles()}, desk);
  return askForNewFile(dialog, texts.proposal, messages,
                       [](const std::filesystem::path& typed) { return typed; });
}

std::optional<std::filesystem::path> askFolder(QWidget* parent, const QString& title,
                                               const Desk& desk) {
  QFileDialog dialog(parent);
  setUp(dialog, title, {allFiles()}, desk);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return chosenFile(dialog);
}

QString displayPath(const std::string& file) {
  return QFile::decodeName(QByteArray::fromStdString(file));
}

QString fullPath(const std::string& file) {
  return file.empty() ? QString() : QFileInfo(displayPath(file)).absoluteFilePath();
}

QString draggedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

}  // namespace orb::ui
