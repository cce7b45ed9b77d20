#include "ui/file_dialogs.h"

#include "model/files.h"
#include "render/qt/text_codec.h"
#include "ui/file_proposals.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QGridLayout>

namespace orb::ui {
namespace {

/// Qt's own dialog: those of the desktops take neither the texts of the filters as they stand nor
/// a further box.
void setUp(QFileDialog& dialog, const QString& title, const model::GameState& game) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setWindowTitle(render::ToQString(model::ProgramName) + title);
  const QStringList filters{QObject::tr("Concordat files: *.orb (*.orb)"),
                            QObject::tr("Data files: *.dat (*.dat)"),
                            QObject::tr("All files: *.* (*)")};
  dialog.setNameFilters(filters);
  dialog.selectNameFilter(filters[static_cast<qsizetype>(gameFilterFor(game.FileName))]);
  if (!game.FileName.empty()) {
    const std::filesystem::path directory = std::filesystem::path(game.FileName).parent_path();
    dialog.setDirectory(displayPath(directory.string()));
  }
}

std::filesystem::path chosenFile(const QFileDialog& dialog) {
  return QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
}

}  // namespace

std::optional<OpenChoice> askGameToOpen(QWidget* parent, const model::GameState& game) {
  QFileDialog dialog(parent);
  setUp(dialog, QObject::tr(" Open"), game);
  dialog.setFileMode(QFileDialog::ExistingFile);
  auto* readOnly = new QCheckBox(QObject::tr("Open as &read-only"), &dialog);
  readOnly->setObjectName(QStringLiteral("chkReadOnly"));
  if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
    grid->addWidget(readOnly, grid->rowCount(), 1);
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return OpenChoice{chosenFile(dialog), readOnly->isChecked()};
}

std::optional<std::filesystem::path> askWhereToSave(QWidget* parent, const model::GameState& game,
                                                    model::Messages& messages) {
  QFileDialog dialog(parent);
  setUp(dialog, QObject::tr(" Save As"), game);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  // The dialog would ask about the name as typed, which is not always the one written.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.selectFile(render::ToQString(proposedGameFile(game)));
  while (dialog.exec() == QDialog::Accepted) {
    const std::filesystem::path file = model::LowerCaseName(chosenFile(dialog));
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored) ||
        messages.Warn(file.string() + " already exists.\rReplace it?")) {
      return file;
    }
  }
  return std::nullopt;
}

QString displayPath(const std::string& file) {
  return QFile::decodeName(QByteArray::fromStdString(file));
}

}  // namespace orb::ui
