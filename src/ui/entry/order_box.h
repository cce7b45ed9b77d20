#pragma once

#include <QLineEdit>

class QCompleter;

namespace orb::ui {

/// The box for one order. Several lines that are pasted or dropped are no order: they are handed on
/// instead of running together.
class OrderBox : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  /// Lines that the box can be completed to. They are shown by who knows when; QLineEdit's own way
  /// would show them after every key, whether any fits or not.
  void setCompletions(QCompleter* completions);

 signals:
  void severalLines(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Whether it has several lines, and so was handed on.
  bool handOn(const QString& text);
  void pasteOrHandOn();
  bool completionsAreShown() const;
  /// False when the key has still to do what it does without completions.
  bool takeCompletion(bool byEnter);

  QString m_example;  ///< what stands in the empty box while it is enabled
  QCompleter* m_completions = nullptr;
};

}  // namespace orb::ui
