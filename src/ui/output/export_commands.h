#pragma once

#include "render/qt/picture_cache.h"
#include "ui/output/print_pages.h"
#include "ui/session/desk.h"

#include <QImage>
#include <QObject>
#include <QPageLayout>
#include <QPrinter>
#include <QUrl>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orb::ui {

/// The commands that take the map and the text report out of the program: to the clipboard, to
/// files and to paper. Errors are shown in a message box, and the files and the clipboard stay as
/// they were.
class ExportCommands : public QObject {
  Q_OBJECT

 public:
  /// Dialogs come up over the window.
  ExportCommands(Desk& desk, model::Messages& messages, QWidget* window);

  /// What opens a written text, the system's text editor unless set; false when it cannot.
  void setOpener(std::function<bool(const QUrl&)> open) { m_open = std::move(open); }

  /// What tells the story of the season with the game, the game alone unless set.
  void setStory(std::function<session::Situation()> story) { m_story = std::move(story); }

  void copyMap();
  void copyText();
  void exportBitmap();
  void exportText();
  void print();
  /// Shows the pages first.
  void previewPrint();
  /// A web page of the season, or of the whole game where its other files lie beside its own.
  void publish();
  /// Web pages for the players' orders: one for each power, or one for all.
  void makeOrderSheets();

 signals:
  /// Something for the status bar: what was done.
  void noted(const QString& text);

 private:
  QImage mapPicture();
  void makeSheets(const std::vector<std::string>& powers, const std::string& address,
                  const std::filesystem::path& path);
  /// A printer set up as it was last, or as suits the game best.
  void setUp(QPrinter& printer);
  PrintedGame printedGame(const QPrinter& printer);
  /// Why the orders and the outcome cannot both be printed, a sentence; empty where they can.
  QString whyNotBothSides(const session::Situation& story) const;
  /// One copy, to the printer or, whole or not at all, to its PDF file.
  void printOnce(QPrinter& printer);

  Desk& m_desk;
  model::Messages& m_messages;
  QWidget* m_window;
  std::function<bool(const QUrl&)> m_open;
  std::function<session::Situation()> m_story;
  render::PictureCache m_pictures;
  std::optional<QPageLayout> m_pageLayout;  ///< as it was chosen last
  bool m_bothSides = false;                 ///< orders and outcome on one sheet
};

}  // namespace orb::ui
