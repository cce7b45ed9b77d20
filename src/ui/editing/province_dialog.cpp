#include "ui/editing/province_dialog.h"

#include "model/position_edit.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/power_choice.h"

#include <QFormLayout>

namespace orb::ui {

ProvinceDialog::ProvinceDialog(const model::GameState& game, int province, QWidget* parent)
    : QDialog(parent),
      m_game(game),
      m_province(province),
      m_owner(new QComboBox),
      m_contested(new QCheckBox(tr("&Contested: no unit may retreat to it"))) {
  setObjectName(QStringLiteral("frmProvince"));
  setWindowTitle(tr("Province"));
  m_owner->setObjectName(QStringLiteral("cboOwner"));
  m_contested->setObjectName(QStringLiteral("chkContested"));
  auto* name = newHeading(text::ToQString(model::PlaceName(*game.Map, province)));
  name->setObjectName(QStringLiteral("lblFullName"));
  auto* home = new QLabel(homeText());
  home->setObjectName(QStringLiteral("lblPartOf"));
  QDialogButtonBox* buttons = newOkCancel(*this, tr("Editing"));
  auto* form = new QFormLayout(this);
  form->addRow(name);
  form->addRow(home);
  form->addRow(tr("&Owner:"), m_owner);
  form->addRow(m_contested);
  form->addRow(buttons);
  fillIn();
}

QString ProvinceDialog::homeText() const {
  const int home = model::FindCountry(m_game.Map->Provinces[m_province].HomeCountry);
  return tr("Part of: ") + (home == 0 ? tr("no power") : powerName(m_game.Countries, home));
}

void ProvinceDialog::fillIn() {
  m_contested->setChecked(!m_game.Provinces[m_province].Uncontested);
  // The box stays, so that every province has the same dialog, but there is nothing to choose.
  if (m_game.Map->Provinces[m_province].IsSupplyCentre == 0) {
    m_owner->addItem(tr("no supply centre"));
    m_owner->setEnabled(false);
    return;
  }
  for (int power = 0; power <= model::CountryCount; ++power)
    m_owner->addItem(powerIcon(m_game.Countries, power), powerName(m_game.Countries, power));
  // The rows of the box are those of the powers, after row 0 for none.
  m_owner->setCurrentIndex(model::FindCountry(m_game.Provinces[m_province].Owner));
}

std::string ProvinceDialog::owner() const {
  const std::string& owner = m_game.Provinces[m_province].Owner;
  const int power = m_owner->currentIndex();
  // A file may name an owner that is no power. It shows as neutral, and stays unless another is
  // chosen.
  if (!m_owner->isEnabled() || power == model::FindCountry(owner)) return owner;
  return power == 0 ? std::string() : m_game.Countries[power].Abbreviation;
}

}  // namespace orb::ui
