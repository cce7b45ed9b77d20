#include "ui/editing/edit_provinces_panel.h"

#include "model/place.h"
#include "model/position_edit.h"
#include "settings/map_options.h"
#include "text/qt/text_codec.h"
#include "ui/editing/province_dialog.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/place_text.h"
#include "ui/widgets/power_choice.h"

#include <QGridLayout>
#include <QRadioButton>
#include <QShortcut>

#include <utility>

namespace orb::ui {
namespace {

using model::GameState;
using text::ToQString;

constexpr int PowerColumns = 2;

EditingTexts provinceTexts() {
  return {QStringLiteral("fraEditProvinces"),
          QStringLiteral("lstProvinces"),
          QObject::tr("Edit provinces"),
          QObject::tr("Click a supply centre to give it to the power chosen here; double-click a "
                      "province for its properties."),
          QStringLiteral("butProvincesUndo"),
          QStringLiteral("butProvincesRedo"),
          QStringLiteral("butProvincesDone"),
          QStringLiteral("butProvincesHelp")};
}

/// "Par  Paris – France".
QString provinceLine(const GameState& game, int row) {
  const model::Province& province = game.Map->Provinces[row];
  QString line =
      QStringLiteral("%1  %2").arg(ToQString(province.Name), ToQString(province.FullName));
  if (province.IsSupplyCentre != 0) {
    const int owner = model::FindCountry(game.Provinces[row].Owner);
    line += QStringLiteral(" \u2013 ") + powerName(game.Countries, owner);
  }
  return game.Provinces[row].Uncontested ? line : QObject::tr("%1, contested").arg(line);
}

}  // namespace

EditProvincesPanel::EditProvincesPanel(Desk& desk, MapPicture& map, QWidget* parent)
    : EditingPanel(desk, map, provinceTexts(), parent),
      m_powers(new QButtonGroup(this)),
      m_give(newButton(QStringLiteral("butProvinceGive"), tr("Gi&ve"))),
      m_properties(newButton(QStringLiteral("butProvinceProperties"), tr("Propert&ies..."))) {
  layOut(newPowers(), {m_give, m_properties});
  connect(m_give, &QPushButton::clicked, this, &EditProvincesPanel::give);
  connect(m_properties, &QPushButton::clicked, this, &EditProvincesPanel::openProperties);
  // In the list only: elsewhere the space bar presses the button that has the keyboard.
  auto* space = new QShortcut(Qt::Key_Space, &list(), nullptr, nullptr, Qt::WidgetShortcut);
  connect(space, &QShortcut::activated, this, &EditProvincesPanel::give);
}

QWidget* EditProvincesPanel::newPowers() {
  auto* powers = new QWidget;
  powers->setAccessibleName(tr("Give supply centres to"));
  auto* grid = new QGridLayout(powers);
  grid->setContentsMargins({});
  grid->setVerticalSpacing(0);
  constexpr int rows = (model::CountryCount + PowerColumns) / PowerColumns;
  for (int power = 0; power <= model::CountryCount; ++power) {
    auto* choice = new QRadioButton(powerName(game().Countries, power));
    choice->setIconSize(QSize(1, 1) * choice->fontMetrics().ascent());
    choice->setObjectName(
        QStringLiteral("optGive") +
        (power == 0 ? QStringLiteral("Neutral") : ToQString(game().Countries[power].Abbreviation)));
    m_powers->addButton(choice, power);
    // The neutral choice stands last, after the powers, though it is number 0.
    const int position = power == 0 ? model::CountryCount : power - 1;
    grid->addWidget(choice, position % rows, position / rows);
  }
  // Always one is chosen: a click on the map must mean something.
  m_powers->button(1)->setChecked(true);
  return powers;
}

void EditProvincesPanel::colourPowers() {
  for (int power = 0; power <= model::CountryCount; ++power)
    m_powers->button(power)->setIcon(powerIcon(game().Countries, power));
}

void EditProvincesPanel::showEvent(QShowEvent* event) {
  EditingPanel::showEvent(event);
  colourPowers();
}

/// The supply centres, then the other provinces.
std::vector<EditingPanel::Entry> EditProvincesPanel::entries() const {
  std::vector<Entry> found;
  for (const bool centres : {true, false}) {
    for (int row = 1; row <= game().Map->Provinces.Count(); ++row) {
      const model::Province& province = game().Map->Provinces[row];
      // Coasts have no owner, and are edited with their province.
      if (model::IsCoast(province.Name) || (province.IsSupplyCentre != 0) != centres) continue;
      const int owner = model::FindCountry(game().Provinces[row].Owner);
      found.push_back(
          {row, provinceLine(game(), row), centres ? powerIcon(game().Countries, owner) : QIcon()});
    }
  }
  return found;
}

void EditProvincesPanel::selectionChanged() {
  const int row = selected();
  m_give->setEnabled(row != 0 && game().Map->Provinces[row].IsSupplyCentre != 0);
  m_properties->setEnabled(row != 0);
}

void EditProvincesPanel::mapClicked(const MapSpot& at) {
  // Remembered for a double click, whose first half has given the centre away already.
  m_given = 0;
  select(at.locationFor("A"));
  const int row = selected();
  if (row == 0) return;
  // A gift to the present owner is no step, so there is nothing to withdraw.
  const std::string before = game().Provinces[row].Owner;
  give();
  if (game().Provinces[row].Owner != before) m_given = row;
}

/// The first of the two clicks was not meant to give anything away.
bool EditProvincesPanel::mapDoubleClicked(const MapSpot& at) {
  const int row = at.locationFor("A");
  if (row == 0) return false;
  if (std::exchange(m_given, 0) == row) desk().withdrawEdit();
  select(row);
  openProperties();
  return true;
}

void EditProvincesPanel::give() {
  const int row = selected();
  if (row == 0) return;
  const int power = m_powers->checkedId();
  const std::string name = power == 0 ? std::string() : game().Countries[power].Abbreviation;
  const bool given = edit([&](GameState& game) { return model::GiveCentre(game, row, name); });
  if (given) emit statusText(placeText(game(), row));
}

void EditProvincesPanel::openProperties() {
  const int row = selected();
  if (row == 0) return;
  ProvinceDialog dialog(game(), row, this);
  if (dialog.exec() != QDialog::Accepted) return;
  edit([&](GameState& game) {
    return model::ChangeProvince(game, row, dialog.owner(), dialog.contested());
  });
}

/// The owners are shown even where the map does not show them by itself.
void EditProvincesPanel::paintOver(QPainter& /*painter*/, render::Surface& surface) {
  const settings::MapOptions& options = desk().view().mapOptions;
  for (int row = 1; !options.ShowCentreOwners && row <= game().Map->Provinces.Count(); ++row) {
    if (game().Map->Provinces[row].IsSupplyCentre != 0)
      render::DrawCentreOwnerMarker(surface, game(), options, row);
  }
  if (selected() == 0) return;
  const model::Province& province = game().Map->Provinces[selected()];
  drawRing(surface, {province.UnitX, province.UnitY}, BoldRing);
}

}  // namespace orb::ui
