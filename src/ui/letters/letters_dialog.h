#pragma once

#include "letters/letter.h"

#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QUrl>

#include <functional>
#include <vector>

namespace orb::ui {

/// The letters to all powers, each with its map: to be copied, opened in the mail program, or saved
/// into a folder.
class LettersDialog : public QDialog {
  Q_OBJECT

 public:
  /// Draws the map of a letter, that many pixels wide.
  using Drawing = std::function<QImage(const letters::Letter& letter, int width)>;

  /// `names` are those of the letters' powers.
  LettersDialog(std::vector<letters::Letter> letters, const QStringList& names, Drawing draw,
                QWidget* parent);

  /// What opens a link, the system's mail program unless set; false when it cannot.
  void setOpener(std::function<bool(const QUrl&)> open) { m_open = std::move(open); }

  /// Says what came of something, below the letters.
  void setNote(const QString& note) { m_note->setText(note); }

 signals:
  /// All letters are to be saved.
  void savingWanted();

 private:
  const letters::Letter& current() const;
  QLayout* newColumns();
  void showLetter();
  void copy();
  void openInMail();

  std::vector<letters::Letter> m_letters;
  Drawing m_draw;
  std::function<bool(const QUrl&)> m_open;
  QListWidget* m_powers;
  QPlainTextEdit* m_text;
  QLabel* m_map;
  QLabel* m_note;
};

}  // namespace orb::ui
