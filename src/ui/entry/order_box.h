#pragma once

#include <QLineEdit>

namespace orb::ui {

/// The box for one order. Several lines that are pasted or dropped are no order: they are handed on
/// instead of running together.
class OrderBox : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

 signals:
  void severalLines(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Whether it has several lines, and so was handed on.
  bool handOn(const QString& text);
  void pasteOrHandOn();

  QString m_example;  ///< what stands in the empty box while it is enabled
};

}  // namespace orb::ui
