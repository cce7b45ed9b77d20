#pragma once

#include "ui/output/print_pages.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinter>

#include <functional>

namespace orb::ui {

/// What would be printed, page by page. Accepted when it is to be printed.
class PrintPreview : public QDialog {
  Q_OBJECT

 public:
  /// Draws the pages on the printer, with both sides of the season or not.
  using Print = std::function<void(QPrinter& printer, bool bothSides)>;

  PrintPreview(QPrinter& printer, Print print, QWidget* parent);

  /// Offers both sides of the season.
  void offerBothSides(bool on);
  /// Says why there are none.
  void sayWhyOneSide(const QString& reason);
  bool bothSides() const { return m_bothSides->isChecked(); }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void setOrientation(QPageLayout::Orientation orientation);

  QPrinter& m_printer;
  Print m_print;
  QPrintPreviewWidget* m_pages;
  QCheckBox* m_bothSides;
  QLabel* m_reason;  ///< why there are not both sides
};

}  // namespace orb::ui
