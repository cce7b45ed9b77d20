#include "ui/output/sheet_dialog.h"

#include "model/messages.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"

#include <QFormLayout>
#include <QVBoxLayout>

namespace orb::ui {

SheetDialog::SheetDialog(QWidget* parent)
    : QDialog(parent),
      m_each(new QRadioButton(tr("One for &each power"))),
      m_all(new QRadioButton(tr("One for &all, who choose their power on it"))),
      m_address(new QLineEdit) {
  setObjectName(QStringLiteral("frmOrderSheets"));
  setWindowTitle(text::ToQString(model::ProgramName) + tr(" Order Sheets"));
  m_each->setObjectName(QStringLiteral("optSheetEach"));
  m_all->setObjectName(QStringLiteral("optSheetAll"));
  m_address->setObjectName(QStringLiteral("txtSheetAddress"));
  m_each->setChecked(true);
  auto* explanation = new QLabel(
      tr("A web page on which a player enters the orders of this stage, by tapping the map or out "
         "of lists."));
  explanation->setWordWrap(true);
  auto* form = new QFormLayout;
  form->addRow(tr("&Mail address for the orders, if any:"), m_address);
  auto* column = new QVBoxLayout(this);
  column->addWidget(explanation);
  column->addWidget(m_each);
  column->addWidget(m_all);
  column->addLayout(form);
  column->addWidget(newOkCancel(*this, tr("Exchanging orders")));
}

std::string SheetDialog::address() const {
  return text::ToBytes(m_address->text().trimmed()).value_or(std::string());
}

}  // namespace orb::ui
