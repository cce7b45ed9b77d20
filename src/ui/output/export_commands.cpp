#include "ui/output/export_commands.h"

#include "history/replay.h"
#include "model/errors.h"
#include "model/files.h"
#include "render/map_view.h"
#include "render/qt/map_file.h"
#include "report/text_report.h"
#include "text/qt/text_codec.h"
#include "text/strings.h"
#include "ui/output/file_dialogs.h"
#include "ui/output/file_proposals.h"
#include "ui/output/print_dialog.h"
#include "ui/output/print_preview.h"
#include "ui/session/attempt.h"
#include "ui/widgets/game_name.h"

#include <QBuffer>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::ui {
namespace {

namespace fs = std::filesystem;

/// On every side of the paper, until the user chooses others.
constexpr double MarginMillimetres = 15;

std::string_view bytesOf(const QByteArray& bytes) {
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray encoded(const QImage& picture, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, format)) {
    throw model::FileError(std::string("The map cannot be written as ") + format + ".");
  }
  return bytes;
}

/// The report as the scratch file has it, which is written first and stays. It lies in the user's
/// own folder: in one that others can write to it might be somebody's link to another file. Where
/// that folder takes no file the report is the same without.
std::string scratchedReport(const session::Situation& situation) {
  const model::GameState& game = situation.Game;
  const std::string_view remark = session::RulesRemark(situation);
  const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
  const fs::path file = fs::path(QFile::encodeName(cache).toStdString()) / "orb_text.tmp";
  try {
    QDir().mkpath(cache);
    report::WriteTextReport(game, file, remark);
    return model::ReadFile(file);
  } catch (const model::FileError&) {
    return report::TextReport(game, remark);
  }
}

using Orders = std::vector<orders::OrderOutcome>;

/// Whether it is an order of the season's first stage.
bool isOfMoves(const orders::OrderOutcome& order) {
  using orders::OrderKind;
  return order.Kind == OrderKind::Move || order.Kind == OrderKind::Hold ||
         order.Kind == OrderKind::Support || order.Kind == OrderKind::Convoy;
}

/// A file's path for the print dialog: in the desk's folder, or else in the user's home.
QString proposedPdf(const Desk& desk) {
  const QDir folder(desk.folder().empty() ? QDir::homePath() : displayPath(desk.folder().string()));
  return folder.absoluteFilePath(text::ToQString(proposedExportFile(desk.game(), ".pdf")));
}

/// A PDF file is replaced whole or not at all.
void printToFile(const QPrinter& printer, const PrintedGame& game) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setTitle(game.footer);
    writer.setCreator(text::ToQString(model::ProgramName));
    writer.setPageLayout(printer.pageLayout());
    printGame(writer, game);
  }
  model::ReplaceFile(QFile::encodeName(printer.outputFileName()).toStdString(), bytesOf(bytes));
}

}  // namespace

ExportCommands::ExportCommands(Desk& desk, model::Messages& messages, QWidget* window)
    : QObject(window),
      m_desk(desk),
      m_messages(messages),
      m_window(window),
      m_open(QDesktopServices::openUrl),
      m_story([&desk] { return desk.now(); }) {}

/// The map as it is shown, at the background picture's own resolution.
QImage ExportCommands::mapPicture() {
  const View& view = m_desk.view();
  return render::MapImage(m_desk.game(), view.mapOptions, m_desk.dataDirectory(), 0, m_pictures,
                          shownOrders(m_desk.now(), view));
}

void ExportCommands::copyMap() {
  m_desk.endTrial();
  attempt(m_messages, [this] {
    const QImage picture = mapPicture();
    // As a picture, and as the PNG file that browsers and mail programs ask for.
    auto content = std::make_unique<QMimeData>();
    content->setImageData(picture);
    content->setData(QStringLiteral("image/png"), encoded(picture, "PNG"));
    QGuiApplication::clipboard()->setMimeData(content.release());
    emit noted(tr("The map is on the clipboard."));
  });
}

void ExportCommands::copyText() {
  m_desk.endTrial();
  attempt(m_messages, [this] {
    const std::string written = scratchedReport(m_desk.now());
    std::string_view rest = written;
    QString text;
    // Whatever the file's line ends are, the clipboard's are those that every program understands.
    while (!rest.empty())
      text += text::ToQString(text::NextLine(rest)) + QLatin1String("\r\n");
    QGuiApplication::clipboard()->setText(text);
    emit noted(tr("The text is on the clipboard."));
  });
}

void ExportCommands::exportBitmap() {
  m_desk.endTrial();
  const auto file =
      askWhereToExport(m_window, ExportKind::Bitmap, m_desk, m_desk.game(), m_messages);
  if (!file) return;
  attempt(m_messages, [&] {
    model::ReplaceFile(*file, bytesOf(encoded(mapPicture(), "BMP")));
    emit noted(tr("The map is in %1.").arg(displayPath(file->string())));
  });
}

void ExportCommands::exportText() {
  m_desk.endTrial();
  const auto file = askWhereToExport(m_window, ExportKind::Text, m_desk, m_desk.game(), m_messages);
  if (!file) return;
  attempt(m_messages, [&] {
    report::WriteTextReport(m_desk.game(), *file, session::RulesRemark(m_desk.now()));
    const QString shown = displayPath(file->string());
    const bool opened = m_open(QUrl::fromLocalFile(shown));
    emit noted(opened ? tr("The text is in %1.").arg(shown)
                      : tr("The text is in %1; no program to open it was found.").arg(shown));
  });
}

QString ExportCommands::whyNotBothSides(const session::Situation& story) const {
  if (m_desk.game().Stage == model::Stage::Moves)
    return tr("There is no outcome yet: the moves are not resolved.");
  const Orders orders = session::SeasonOrders(story);
  if (std::none_of(orders.begin(), orders.end(), isOfMoves)) {
    return tr(
        "The season's orders are not known: they stand neither in this game's file nor in "
        "another one beside it.");
  }
  return {};
}

PrintedGame ExportCommands::printedGame(const QPrinter& printer) {
  const model::GameState& now = m_desk.game();
  const View& view = m_desk.view();
  settings::MapOptions options = view.mapOptions;
  // The colours would come out as greys that nobody can tell apart.
  if (printer.colorMode() == QPrinter::GrayScale) options.UnitLetters = true;
  const auto map = [this, options](const model::GameState& game, Orders orders) {
    return [this, options, game, orders = std::move(orders)](QPainter& painter,
                                                             const QRectF& target) {
      render::PrintMap(game, options, m_desk.dataDirectory(), m_pictures, painter, target, orders);
    };
  };
  const fs::path background = render::BackgroundFile(m_desk.dataDirectory(), options.Mode);
  PrintedGame printed{gameName(now),
                      text::ToQString(report::TextReport(now, session::RulesRemark(m_desk.now()))),
                      m_pictures.Picture(background).size(),
                      {}};
  const session::Situation story = m_bothSides ? m_story() : m_desk.now();
  if (m_bothSides && whyNotBothSides(story).isEmpty()) {
    Orders orders = session::SeasonOrders(story);
    const history::Replay season = history::SeasonReplay(now, orders);
    std::erase_if(orders, [](const orders::OrderOutcome& order) { return !isOfMoves(order); });
    printed.maps = {map(season.Start, orders), map(now, {})};
  } else {
    printed.maps = {map(now, shownOrders(m_desk.now(), view))};
  }
  return printed;
}

void ExportCommands::setUp(QPrinter& printer) {
  const QMarginsF margins(MarginMillimetres, MarginMillimetres, MarginMillimetres,
                          MarginMillimetres);
  printer.setPageMargins(margins, QPageLayout::Millimeter);
  printer.setPageLayout(m_pageLayout ? *m_pageLayout
                                     : bestLayout(printer.pageLayout(), printedGame(printer)));
}

void ExportCommands::print() {
  m_desk.endTrial();
  attempt(m_messages, [this] {
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer);
    const QPageLayout proposed = printer.pageLayout();
    if (!askHowToPrint(m_window, proposedPdf(m_desk), printer)) return;
    if (printer.pageLayout() != proposed) m_pageLayout = printer.pageLayout();
    const PrintChoice choice = choiceOf(printer);
    // The copies are printed one by one, each as a job of its own.
    printer.setCopyCount(1);
    printCopies(choice, QPrinterInfo::defaultPrinterName(), m_messages,
                [&] { printOnce(printer); });
  });
}

void ExportCommands::previewPrint() {
  m_desk.endTrial();
  bool goesOn = false;
  attempt(m_messages, [&] {
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer);
    const QPageLayout proposed = printer.pageLayout();
    const auto draw = [this](QPrinter& target, bool bothSides) {
      m_bothSides = bothSides;
      attempt(m_messages, [&] { printGame(target, printedGame(target)); });
    };
    PrintPreview preview(printer, draw, m_window);
    const QString missing = whyNotBothSides(m_story());
    missing.isEmpty() ? preview.offerBothSides(m_bothSides) : preview.sayWhyOneSide(missing);
    goesOn = preview.exec() == QDialog::Accepted;
    if (printer.pageLayout() != proposed) m_pageLayout = printer.pageLayout();
  });
  if (goesOn) print();
}

void ExportCommands::printOnce(QPrinter& printer) {
  const PrintedGame game = printedGame(printer);
  if (printer.outputFormat() == QPrinter::PdfFormat) {
    printToFile(printer, game);
    emit noted(tr("The map and the report are in %1.").arg(printer.outputFileName()));
  } else {
    printer.setDocName(game.footer);
    printGame(printer, game);
  }
}

}  // namespace orb::ui
