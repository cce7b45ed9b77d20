#pragma once

#include <QPlainTextEdit>

#include <string>
#include <vector>

namespace orb::ui {

/// The free text of a game: holds what a game file can hold, and no more lines. Of a text that is
/// pasted, characters that cannot be stored and lines for which there is no room are left out.
class FreeTextBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit FreeTextBox(QWidget* parent = nullptr);

  void setLines(const std::vector<std::string>& lines);

  /// Byte for byte those that were set as long as nothing was edited.
  std::vector<std::string> lines() const;

  int lineCount() const;

 signals:
  /// Something was refused; `why` is a sentence for the user.
  void refused(const QString& why);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  void insert(QString text);

  /// Kept, as a file may hold what the box can only show in another way.
  std::vector<std::string> m_setLines;
};

}  // namespace orb::ui
