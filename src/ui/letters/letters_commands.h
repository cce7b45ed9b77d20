#pragma once

#include "letters/letter.h"

#include "render/qt/picture_cache.h"
#include "ui/session/desk.h"

#include <QObject>

#include <filesystem>
#include <vector>

namespace orb::ui {

class LettersDialog;

/// The commands on what goes out to the players and has come in from them.
class LettersCommands : public QObject {
  Q_OBJECT

 public:
  /// Dialogs come up over the window.
  LettersCommands(Desk& desk, model::Messages& messages, QWidget* window);

  /// Shows the letters to all powers.
  void showLetters();
  /// Shows the register of the game.
  void showReceived();
  /// Tells what the game has otherwise than one in a file.
  void compareWithFile();

 signals:
  /// Something for the status bar: what was done.
  void noted(const QString& text);

 private:
  QImage mapOf(const letters::Letter& letter, int width);
  void saveLetters(const std::vector<letters::Letter>& letters, LettersDialog& dialog);

  Desk& m_desk;
  model::Messages& m_messages;
  QWidget* m_window;
  render::PictureCache m_pictures;
};

}  // namespace orb::ui
