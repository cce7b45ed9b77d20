#include "ui/window/file_menu.h"

#include "model/errors.h"
#include "ui/exchange/exchange_commands.h"
#include "ui/letters/letters_commands.h"
#include "ui/output/export_commands.h"
#include "ui/output/file_dialogs.h"
#include "ui/widgets/controls.h"
#include "ui/window/recent_files_menu.h"

namespace orb::ui {

FileMenu::FileMenu(Desk& desk, model::Messages& messages, WindowMemory& memory,
                   ExportCommands& exports, ExchangeCommands& exchange, QWidget* window)
    : QMenu(tr("&File"), window), m_desk(desk), m_messages(messages), m_window(window) {
  setObjectName(QStringLiteral("mnuFile"));
  QAction* create = newEntry(*this, QStringLiteral("mnuFileNew"), tr("&New"), QKeySequence::New);
  QAction* blank = newEntry(*this, QStringLiteral("mnuFileBlank"), tr("&Blank"));
  m_open = newEntry(*this, QStringLiteral("mnuFileOpen"), tr("&Open..."), QKeySequence::Open);
  addMenu(new RecentFilesMenu(desk, memory, m_window, this));
  m_save = newEntry(*this, QStringLiteral("mnuFileSave"), tr("&Save"), QKeySequence::Save);
  QAction* saveAs = newEntry(*this, QStringLiteral("mnuFileSaveAs"), tr("Save &As..."),
                             Qt::CTRL | Qt::SHIFT | Qt::Key_S);
  addSeparator();
  addExchange(exchange);
  addSeparator();
  addExports(exports);
  addSeparator();
  QAction* exit = newEntry(*this, QStringLiteral("mnuFileExit"), tr("E&xit"), Qt::CTRL | Qt::Key_Q);
  connect(create, &QAction::triggered, &m_desk, &Desk::newGame);
  connect(blank, &QAction::triggered, &m_desk, &Desk::blankGame);
  connect(m_open, &QAction::triggered, this, &FileMenu::open);
  connect(m_save, &QAction::triggered, this, &FileMenu::save);
  connect(saveAs, &QAction::triggered, this, &FileMenu::saveAs);
  connect(exit, &QAction::triggered, m_window, &QWidget::close);
  using session::Changes;
  m_desk.whenChanged(Changes::Season | Changes::Orders | Changes::File, this, &FileMenu::showState);
  connect(&m_desk, &Desk::viewChanged, this, &FileMenu::showState);
  showState();
}

void FileMenu::addExchange(ExchangeCommands& exchange) {
  m_importOrders = newEntry(*this, QStringLiteral("mnuFileImportOrders"), tr("I&mport Orders..."),
                            Qt::CTRL | Qt::Key_I);
  m_exportOrders = newEntry(*this, QStringLiteral("mnuFileExportOrders"), tr("Export Or&ders..."));
  connect(m_importOrders, &QAction::triggered, &exchange, &ExchangeCommands::importOrders);
  connect(m_exportOrders, &QAction::triggered, &exchange, &ExchangeCommands::exportOrders);
}

void FileMenu::addExports(ExportCommands& exports) {
  QAction* bitmap = newEntry(*this, QStringLiteral("mnuFileExportBMP"), tr("Export B&itmap..."));
  m_exportText = newEntry(*this, QStringLiteral("mnuFileExportText"), tr("Export &Text..."));
  QAction* publish = newEntry(*this, QStringLiteral("mnuFilePublish"), tr("P&ublish..."));
  m_orderSheets = newEntry(*this, QStringLiteral("mnuFileOrderSheets"), tr("Order S&heets..."));
  QAction* preview =
      newEntry(*this, QStringLiteral("mnuFilePrintPreview"), tr("Print Previe&w..."));
  m_print = newEntry(*this, QStringLiteral("mnuFilePrint"), tr("&Print..."), QKeySequence::Print);
  addSeparator();
  // The window connects these two: the player that they start needs the map, which is not the
  // menu's business.
  m_animate = newEntry(*this, QStringLiteral("mnuFileAnimate"), tr("Animat&e..."));
  m_animateMove = newEntry(*this, QStringLiteral("mnuFileAnimateMove"), tr("Animate Mo&ve"));
  connect(bitmap, &QAction::triggered, &exports, &ExportCommands::exportBitmap);
  connect(m_exportText, &QAction::triggered, &exports, &ExportCommands::exportText);
  connect(publish, &QAction::triggered, &exports, &ExportCommands::publish);
  connect(m_orderSheets, &QAction::triggered, &exports, &ExportCommands::makeOrderSheets);
  connect(preview, &QAction::triggered, &exports, &ExportCommands::previewPrint);
  connect(m_print, &QAction::triggered, &exports, &ExportCommands::print);
}

void FileMenu::addComparison(LettersCommands& letters) {
  QAction* compare = newEntry(*this, QStringLiteral("mnuFileCompare"), tr("&Compare with..."));
  insertAction(m_importOrders, compare);
  insertSeparator(m_importOrders);
  connect(compare, &QAction::triggered, &letters, &LettersCommands::compareWithFile);
}

void FileMenu::open() {
  const auto choice = askGameToOpen(m_window, m_desk);
  if (choice) m_desk.openGame(choice->file, choice->readOnly);
}

bool FileMenu::save() {
  if (m_desk.game().FileName.empty() || !session::CanSave(m_desk.now())) return saveAs();
  return saveTo(m_desk.game().FileName);
}

bool FileMenu::saveAs() {
  const auto file = askWhereToSave(m_window, m_desk, m_messages);
  return file && saveTo(*file);
}

bool FileMenu::saveTo(const std::filesystem::path& file) {
  try {
    session::ExpectUnchanged(m_desk.now(), file);
  } catch (const model::FileChangedError&) {
    switch (askAboutChangedFile(m_window, file)) {
      case ChangedFileChoice::Replace:
        return m_desk.saveGameAs(file, session::Overwrite::Anything);
      case ChangedFileChoice::SaveAs:
        return saveAs();
      default:
        return false;
    }
  }
  return m_desk.saveGameAs(file);
}

void FileMenu::showState() {
  m_save->setEnabled(session::CanSave(m_desk.now()));
  m_importOrders->setEnabled(session::TakesOrders(m_desk.game()) && !m_desk.view().viewOnly);
  m_orderSheets->setEnabled(session::TakesOrders(m_desk.game()));
  m_exportOrders->setEnabled(session::HasOrderLines(m_desk.game()));
  m_animateMove->setEnabled(session::IsFinished(m_desk.now()));
}

}  // namespace orb::ui
