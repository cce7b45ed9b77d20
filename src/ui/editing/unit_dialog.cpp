#include "ui/editing/unit_dialog.h"

#include "model/lookups.h"
#include "model/position_edit.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/power_choice.h"

#include <QFormLayout>
#include <QHBoxLayout>

#include <utility>

namespace orb::ui {
namespace {

/// Room kept for the longest fault, so that the dialog does not change its size as it is filled in.
constexpr int FaultLines = 3;

/// A button or check box with its name and caption.
template <class Button>
Button* newChoice(const QString& name, const QString& caption) {
  auto* button = new Button(caption);
  button->setObjectName(name);
  return button;
}

}  // namespace

UnitDialog::UnitDialog(const model::GameState& game, model::Unit shown, int replaced,
                       QWidget* parent)
    : QDialog(parent),
      m_game(game),
      m_shown(std::move(shown)),
      m_replaced(replaced),
      m_power(new QComboBox),
      m_army(newChoice<QRadioButton>(QStringLiteral("optArmy"), tr("&Army"))),
      m_fleet(newChoice<QRadioButton>(QStringLiteral("optFleet"), tr("&Fleet"))),
      m_location(new PlaceBox(QStringLiteral("cboLocation"))),
      m_dislodged(newChoice<QCheckBox>(QStringLiteral("chkDislodged"), tr("&Dislodged"))),
      m_from(new PlaceBox(QStringLiteral("cboDislodgedFrom"))),
      m_previous(new PlaceBox(QStringLiteral("cboPreviousLocation"))),
      m_fault(new QLabel) {
  setObjectName(QStringLiteral("frmUnit"));
  setWindowTitle(replaced == 0 ? tr("Add unit") : tr("Unit"));
  m_power->setObjectName(QStringLiteral("cboPower"));
  layOut();
  fillIn();
  // The two types exclude each other, so one button reports every change.
  connect(m_army, &QRadioButton::toggled, this, &UnitDialog::offerPlaces);
  connect(m_dislodged, &QCheckBox::toggled, this, &UnitDialog::check);
  for (QComboBox* box : {m_power, static_cast<QComboBox*>(m_location),
                         static_cast<QComboBox*>(m_from), static_cast<QComboBox*>(m_previous)}) {
    connect(box, &QComboBox::currentIndexChanged, this, &UnitDialog::check);
  }
  check();
}

void UnitDialog::layOut() {
  auto* type = new QHBoxLayout;
  type->addWidget(m_army);
  type->addWidget(m_fleet);
  type->addStretch();
  m_fault->setObjectName(QStringLiteral("lblFault"));
  m_fault->setWordWrap(true);
  // It quotes what a game file may hold, which must not be taken for markup.
  m_fault->setTextFormat(Qt::PlainText);
  m_fault->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  m_fault->setMinimumHeight(FaultLines * fontMetrics().lineSpacing());
  QDialogButtonBox* buttons = newOkCancel(*this, tr("Editing"));
  m_ok = buttons->button(QDialogButtonBox::Ok);
  auto* form = new QFormLayout(this);
  form->addRow(tr("&Power:"), m_power);
  form->addRow(tr("Type:"), type);
  form->addRow(tr("&Location:"), m_location);
  form->addRow(QString(), m_dislodged);
  form->addRow(tr("Attacked f&rom:"), m_from);
  form->addRow(tr("Place &before the moves:"), m_previous);
  form->addRow(m_fault);
  form->addRow(buttons);
}

void UnitDialog::fillIn() {
  for (int power = 1; power <= model::CountryCount; ++power)
    m_power->addItem(powerIcon(m_game.Countries, power), powerName(m_game.Countries, power));
  // A power that only the file knows is shown as no choice, and kept unless one is made.
  m_power->setCurrentIndex(model::FindCountry(m_shown.Power) - 1);
  (m_shown.UnitType == "A" ? m_army : m_fleet)->setChecked(true);
  m_dislodged->setChecked(m_shown.Status == model::Dislodged);
  // An attack can come from any place, and the record of it may be missing.
  m_from->offer(
      *m_game.Map, [](std::string_view) { return true; }, tr("not recorded"));
  m_from->choose(m_shown.DislodgedFrom);
  offerPlaces();
  m_location->choose(m_shown.Location);
  m_previous->choose(m_shown.PreviousLocation == model::Unknown ? std::string()
                                                                : m_shown.PreviousLocation);
}

std::string UnitDialog::unitType() const {
  return m_army->isChecked() ? "A" : "F";
}

/// Where a unit of the type can stand. Of the place chosen before the first such location stays
/// chosen.
void UnitDialog::offerPlaces() {
  const std::string type = unitType();
  const auto fits = [&](std::string_view location) {
    return model::CanStandIn(*m_game.Map, type, location);
  };
  const std::string location = m_location->location();
  const std::string previous = m_previous->location();
  m_location->offer(*m_game.Map, fits);
  const std::vector<int> same = model::StandingPlaces(*m_game.Map, type, location);
  if (!same.empty()) m_location->choose(m_game.Map->Provinces[same.front()].Name);
  m_previous->offer(*m_game.Map, fits, tr("not recorded"));
  m_previous->choose(previous);
}

model::Unit UnitDialog::unit() const {
  model::Unit unit = m_shown;
  const int power = m_power->currentIndex() + 1;
  unit.Power = power == 0 ? m_shown.Power : m_game.Countries[power].Abbreviation;
  unit.UnitType = unitType();
  unit.Location = m_location->location();
  if (m_dislodged->isChecked()) {
    unit.Status = model::Dislodged;
    unit.DislodgedFrom = m_from->location();
  } else if (!unit.Status.empty()) {
    unit.Status.clear();
    unit.DislodgedFrom.clear();
  }
  // "unknown" stays so.
  const std::string previous = m_previous->location();
  if (!previous.empty() || unit.PreviousLocation != model::Unknown)
    unit.PreviousLocation = previous;
  return unit;
}

void UnitDialog::check() {
  m_from->setEnabled(m_dislodged->isChecked());
  const model::Unit wanted = unit();
  const QString fault = wanted.Location.empty()
                            ? tr("Choose the unit's location.")
                            : text::ToQString(model::UnitFault(m_game, wanted, m_replaced));
  m_fault->setText(fault);
  m_ok->setEnabled(fault.isEmpty());
}

}  // namespace orb::ui
