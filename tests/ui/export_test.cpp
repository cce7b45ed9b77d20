#include "model/files.h"
#include "render/qt/map_file.h"
#include "report/text_report.h"
#include "settings/map_options.h"
#include "support/directories.h"
#include "support/scripted_messages.h"
#include "text/qt/text_codec.h"
#include "ui/modal_script.h"
#include "ui/output/export_commands.h"
#include "ui/output/print_dialog.h"
#include "ui/output/print_pages.h"
#include "ui/window_fixture.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QProcess>
#include <QRadioButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

QStringList PdfPages(const fs::path& file) {
  QProcess process;
  process.start("pdftotext", {"-layout", Shown(file), "-"});
  process.waitForFinished();
  QStringList pages = QString::fromUtf8(process.readAllStandardOutput()).split('\f');
  pages.removeLast();
  return pages;
}

ui::Start GameInGrey() {
  ScriptedMessages none;
  ui::Start start = ui::startProgram({DataDirectory(), {}}, {}, none);
  start.situation.Game.Season = "Autumn";
  start.situation.Game.Year = 1910;
  start.situation.Game.TextLines.Append("caf\xE9 \x80");
  start.view.mapOptions = {settings::MapMode::Grey, true, true, true};
  return start;
}

/// The commands on a game shown in grey, in a working folder of their own.
class ExportTest : public testing::Test {
 protected:
  ExportTest() { fs::current_path(folder_.Path()); }
  ~ExportTest() override { fs::current_path(before_); }

  QImage Picture() {
    return render::MapImage(desk_.game(), desk_.view().mapOptions, DataDirectory(), 0, pictures_);
  }

  std::string Report() const {
    report::WriteTextReport(desk_.game(), "expected.txt");
    return model::ReadFile("expected.txt");
  }

  const fs::path before_ = fs::current_path();
  TemporaryDirectory folder_;
  ScriptedMessages messages_;
  ui::Desk desk_{GameInGrey(), DataDirectory(), messages_, nullptr};
  QWidget window_;
  render::PictureCache pictures_;
  ui::ExportCommands commands_{desk_, messages_, &window_};
};

TEST_F(ExportTest, DialogsProposeAndCancelSilently) {
  const auto expect = [](const QString& title, const char* filter, const char* proposal) {
    return [=](QDialog& dialog) {
      auto& files = dynamic_cast<QFileDialog&>(dialog);
      EXPECT_EQ(files.windowTitle(), title);
      EXPECT_EQ(files.acceptMode(), QFileDialog::AcceptSave);
      EXPECT_EQ(files.findChild<QLineEdit*>()->text(), proposal);
      const auto& types = *files.findChild<QComboBox*>("fileTypeCombo");
      EXPECT_EQ(types.currentText(), filter);
      EXPECT_EQ(types.itemText(1), "All files: *.*");
      files.reject();
    };
  };
  const ModalScript answers({expect(Titled(" Export Bitmap"), "Bitmap files: *.bmp", "a10.bmp"),
                             expect(Titled(" Export Text"), "Text files: *.txt", "a10.txt")});
  commands_.exportBitmap();
  commands_.exportText();
  EXPECT_EQ(folder_.EntryCount(), 0);
}

TEST_F(ExportTest, TheMapIsTakenAsShownAndReplacesNothingUnasked) {
  const fs::path taken = folder_.Write("Taken", "precious");
  const auto chooseTaken = [&](QDialog& dialog) {
    EXPECT_EQ(model::ReadFile(taken), "precious");
    FileChosen(Shown(taken))(dialog);
  };
  const ModalScript answers({FileChosen(Shown(folder_.Path() / "none" / "a.bmp")), chooseTaken,
                             Pressed("frmReplaceFile", QMessageBox::No), chooseTaken,
                             Pressed("frmReplaceFile", QMessageBox::Yes)});
  commands_.exportBitmap();
  EXPECT_EQ(messages_.Shown.size(), 1U) << "there is no such folder";
  EXPECT_EQ(QImage(Shown(taken), "BMP"), Picture());

  commands_.copyMap();
  const QMimeData& content = *QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(content.imageData().value<QImage>(), Picture());
  EXPECT_EQ(QImage::fromData(content.data("image/png")), Picture());
}

TEST_F(ExportTest, PagesAreMadeOfTheGameAndForItsPlayers) {
  const fs::path page = folder_.Path() / "page.html";
  const fs::path sheet = folder_.Path() / "sheet.html";
  const auto forAll = [](QDialog& dialog) {
    dialog.findChild<QRadioButton*>("optSheetAll")->click();
    dialog.findChild<QLineEdit*>("txtSheetAddress")->setText(" gm@example.org ");
    dialog.accept();
  };
  const ModalScript answers({FileChosen(Shown(page)), forAll, FileChosen(Shown(sheet)),
                             [](QDialog& dialog) { dialog.accept(); },
                             FileChosen(Shown(folder_.Path()))});
  commands_.publish();
  EXPECT_THAT(model::ReadFile(page), testing::HasSubstr("Autumn 1910"));
  commands_.makeOrderSheets();
  EXPECT_THAT(model::ReadFile(sheet), testing::AllOf(testing::HasSubstr("\"gm@example.org\""),
                                                     testing::HasSubstr("[ORB sheet: ITA")));
  commands_.makeOrderSheets();
  EXPECT_EQ(folder_.EntryCount(), 2 + model::CountryCount);
  const std::string french = model::ReadFile(folder_.Path() / "a10_orders_FRA.html");
  EXPECT_THAT(french, testing::AllOf(testing::HasSubstr("[ORB sheet: FRA"),
                                     testing::Not(testing::HasSubstr("[ORB sheet: ITA"))));
  EXPECT_TRUE(messages_.Shown.empty());
}

TEST_F(ExportTest, TheCopiedTextIsThatOfTheScratchFileInTheUsersOwnFolder) {
  const fs::path cache = folder_.Path() / "cache";
  qputenv("XDG_CACHE_HOME", QByteArray::fromStdString(cache.string()));
  // What somebody has laid in the folder that the program was started in.
  const fs::path precious = folder_.Write("precious", "precious");
  fs::create_symlink(precious, "orb_text.tmp");
  QClipboard& clipboard = *QGuiApplication::clipboard();
  commands_.copyText();
  EXPECT_EQ(text::ToBytes(clipboard.text()), Report());
  const fs::path scratch = cache / QCoreApplication::applicationName().toStdString();
  EXPECT_EQ(model::ReadFile(scratch / "orb_text.tmp"), Report());
  EXPECT_EQ(model::ReadFile(precious), "precious");

  fs::remove_all(cache);
  folder_.Write("cache", "no folder");
  clipboard.clear();
  commands_.copyText();
  EXPECT_EQ(text::ToBytes(clipboard.text()), Report()) << "it needs no file";
  qunsetenv("XDG_CACHE_HOME");
}

TEST_F(ExportTest, TheExportedTextIsOpened) {
  const fs::path file = folder_.Path() / "My Report";
  QStringList opened;
  commands_.setOpener([&](const QUrl& url) {
    opened << url.toLocalFile();
    return false;
  });
  const ModalScript answers({FileChosen(Shown(file)), FileChosen("/proc/self/report.txt")});
  commands_.exportText();
  commands_.exportText();
  EXPECT_EQ(model::ReadFile(file), Report());
  EXPECT_EQ(opened, QStringList({Shown(file)}));
  EXPECT_EQ(messages_.Shown.size(), 1U);
}

TEST_F(ExportTest, PrintsToAPdfFile) {
  const fs::path file = folder_.Path() / "map.pdf";
  const auto print = [&](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), Titled(" Print"));
    EXPECT_FALSE(dialog.findChild<QWidget*>("printRange")->isEnabled());
    auto* printers = dialog.findChild<QComboBox*>("printers");
    printers->setCurrentIndex(printers->count() - 1);
    auto* name = dialog.findChild<QLineEdit*>("filename");
    EXPECT_TRUE(name->text().endsWith("/a10.pdf"));
    name->setText(Shown(file));
    dialog.accept();
  };
  const ModalScript answers({[](QDialog& dialog) { dialog.reject(); }, print});
  commands_.print();
  EXPECT_EQ(folder_.EntryCount(), 0);
  commands_.print();
  const QString text = PdfPages(file).join(' ').simplified();
  EXPECT_TRUE(text.contains("before moves"));
  EXPECT_TRUE(text.contains("CONCORDAT, Autumn 1910 Page 2 of 2"));
  EXPECT_TRUE(text.contains(text::ToQString("Text ---- caf\xE9 \x80"))) << text.toStdString();
}

TEST(Print, OnceACopyOnTheDefaultPrinterOnly) {
  const std::vector<std::tuple<ui::PrintChoice, QString, int>> cases{
      {{"Laser", 3, false}, "Laser", 3},
      {{"Laser", 2, false}, "Ink", 0},
      {{"", 1, false}, "", 0},
      {{"", 4, true}, "Laser", 1}};
  for (const auto& [choice, defaultPrinter, expected] : cases) {
    ScriptedMessages messages;
    int runs = 0;
    ui::printCopies(choice, defaultPrinter, messages, [&] { ++runs; });
    EXPECT_EQ(runs, expected);
    ASSERT_EQ(messages.Shown.size(), expected == 0 ? 1U : 0U);
    if (expected > 0) continue;
    EXPECT_EQ(messages.Shown[0].first, "No default printer set.");
    EXPECT_EQ(messages.Shown[0].second, model::Icon::Exclamation);
  }
}

TEST(Print, PagesLieAcrossWhereTheMapGainsByItWithoutAFurtherPage) {
  const QPageLayout page(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                         QMarginsF(40, 40, 40, 40));
  const auto paint = [](QPainter&, const QRectF&) {};
  // Upright, about 25 lines fit below the map; across, the report has pages of its own.
  for (const auto& [lines, orientation] : {std::pair(15, QPageLayout::Portrait),
                                           {35, QPageLayout::Landscape},
                                           {75, QPageLayout::Portrait}}) {
    const ui::PrintedGame game{"", QStringLiteral("x\n").repeated(lines), QSizeF(12, 10), {paint}};
    EXPECT_EQ(ui::bestLayout(page, game).orientation(), orientation) << lines;
  }
}

TEST(Print, NoLineIsLostClippedOrTornFromItsHeading) {
  const auto wideLine = [](int i) { return QString(74, 'M') + QString::number(1000 + i); };
  QString report;
  int lineCount = 0;
  for (const int lines : {30, 1, 60, 7, 120, 3}) {
    report += "\nSection\n-------\n";
    for (int i = 0; i < lines; ++i)
      report += wideLine(lineCount++) + '\n';
  }
  const auto paint = [](QPainter& painter, const QRectF& map) { painter.fillRect(map, Qt::gray); };
  const TemporaryDirectory folder;
  const fs::path file = folder.Path() / "long.pdf";
  for (const auto& [size, orientation] : {std::pair(QPageSize::A4, QPageLayout::Portrait),
                                          {QPageSize::A4, QPageLayout::Landscape},
                                          {QPageSize::A6, QPageLayout::Portrait}}) {
    {
      QPdfWriter writer(Shown(file));
      writer.setPageLayout({QPageSize(size), orientation, QMarginsF(40, 40, 40, 40)});
      ui::printGame(writer, {"A title", report, QSizeF(1200, 1000), {paint}});
    }
    const QStringList pages = PdfPages(file);
    int number = 0;
    for (qsizetype page = 0; page < pages.size(); ++page) {
      QStringList lines = pages[page].split('\n', Qt::SkipEmptyParts);
      EXPECT_EQ(lines.takeLast().simplified(),
                QStringLiteral("A title Page %1 of %2").arg(page + 1).arg(pages.size()));
      EXPECT_FALSE(!lines.isEmpty() && lines.last().startsWith('-')) << "a heading alone";
      QStringList rows;
      for (const QString& line : lines) {
        if (!line.startsWith(' ')) {
          rows << line;
          continue;
        }
        ASSERT_FALSE(rows.isEmpty()) << "a row is torn";
        rows.last() += line.trimmed();
      }
      for (const QString& row : rows.filter("M"))
        EXPECT_EQ(row.toStdString(), wideLine(number++).toStdString());
    }
    EXPECT_EQ(number, lineCount);
  }
}

}  // namespace
}  // namespace orb::tests
