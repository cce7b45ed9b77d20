#include "ui/output/print_preview.h"

#include "model/messages.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/help_request.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

namespace orb::ui {

PrintPreview::PrintPreview(QPrinter& printer, Print print, QWidget* parent)
    : QDialog(parent),
      m_printer(printer),
      m_print(std::move(print)),
      m_pages(new QPrintPreviewWidget(&printer, this)),
      m_bothSides(new QCheckBox(tr("Or&ders and outcome on one sheet"))),
      m_reason(new QLabel) {
  setObjectName(QStringLiteral("frmPrintPreview"));
  setWindowTitle(text::ToQString(model::ProgramName) + tr(" Print Preview"));
  m_pages->setAccessibleName(tr("Pages"));
  m_bothSides->setObjectName(QStringLiteral("chkBothSides"));
  m_bothSides->setEnabled(false);
  m_reason->setObjectName(QStringLiteral("lblOneSide"));
  m_reason->setWordWrap(true);
  m_reason->hide();
  auto* upright = new QRadioButton(tr("&Upright"));
  auto* across = new QRadioButton(tr("&Across"));
  upright->setObjectName(QStringLiteral("optUpright"));
  across->setObjectName(QStringLiteral("optAcross"));
  (printer.pageLayout().orientation() == QPageLayout::Portrait ? upright : across)
      ->setChecked(true);
  auto* choices = new QHBoxLayout;
  for (QWidget* choice : {static_cast<QWidget*>(upright), static_cast<QWidget*>(across),
                          static_cast<QWidget*>(m_bothSides)})
    choices->addWidget(choice);
  choices->addStretch();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::Help);
  QPushButton* printNow = newButton(QStringLiteral("butPrint"), tr("&Print..."));
  buttons->addButton(printNow, QDialogButtonBox::AcceptRole);
  auto* column = new QVBoxLayout(this);
  column->addLayout(choices);
  column->addWidget(m_reason);
  column->addWidget(m_pages, 1);
  column->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::helpRequested, this,
          [this] { askForHelp(*this, tr("Printing and exporting")); });
  connect(upright, &QRadioButton::toggled, this,
          [this](bool on) { setOrientation(on ? QPageLayout::Portrait : QPageLayout::Landscape); });
  connect(m_bothSides, &QCheckBox::toggled, m_pages, &QPrintPreviewWidget::updatePreview);
  connect(m_pages, &QPrintPreviewWidget::paintRequested, this,
          [this](QPrinter* target) { m_print(*target, bothSides()); });
  resize(QSize(820, 640).boundedTo(screen()->availableSize() * 0.9));
}

void PrintPreview::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // Only then the pages know how much room they have.
  QMetaObject::invokeMethod(
      m_pages,
      [this] {
        m_pages->setAllPagesViewMode();
        m_pages->fitInView();
      },
      Qt::QueuedConnection);
}

void PrintPreview::offerBothSides(bool on) {
  m_bothSides->setEnabled(true);
  m_bothSides->setChecked(on);
}

void PrintPreview::sayWhyOneSide(const QString& reason) {
  m_bothSides->setToolTip(reason);
  m_bothSides->setAccessibleDescription(reason);
  m_reason->setText(m_bothSides->text().remove(QLatin1Char('&')) + QStringLiteral(": ") + reason);
  m_reason->show();
}

void PrintPreview::setOrientation(QPageLayout::Orientation orientation) {
  m_printer.setPageOrientation(orientation);
  m_pages->updatePreview();
}

}  // namespace orb::ui
