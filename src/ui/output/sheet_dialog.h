#pragma once

#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>

#include <string>

namespace orb::ui {

/// Asks what order sheets are wanted and where players send their orders.
class SheetDialog : public QDialog {
  Q_OBJECT

 public:
  explicit SheetDialog(QWidget* parent);

  /// Whether there is to be one sheet for each power, rather than one for all.
  bool isForEach() const { return m_each->isChecked(); }

  /// 8-bit text; empty for none.
  std::string address() const;

 private:
  QRadioButton* m_each;
  QRadioButton* m_all;
  QLineEdit* m_address;
};

}  // namespace orb::ui
