#include "ui/editing/unit_menus.h"

#include "model/position_edit.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/plain_text.h"
#include "ui/widgets/power_choice.h"

namespace orb::ui {
namespace {

/// One of the units on offer.
struct Offer {
  model::Unit unit;
  QString caption;  ///< "Fleet, Spain (north coast)"
};

/// Every unit of the power that could be added there; none where the place is taken.
std::vector<Offer> offers(const model::GameState& game, const std::string& place,
                          const std::string& power) {
  std::vector<Offer> found;
  // Every coast is an offer of its own; a fault means that the unit cannot stand there.
  for (const char* type : {"A", "F"}) {
    const std::vector<int> rows = model::StandingPlaces(*game.Map, type, place);
    for (const int row : rows) {
      const model::Province& province = game.Map->Provinces[row];
      const model::Unit unit = model::NewUnit(power, type, province.Name);
      if (!model::UnitFault(game, unit, 0).empty()) continue;
      QString caption = unit.UnitType == "A" ? QMenu::tr("Army") : QMenu::tr("Fleet");
      if (rows.size() > 1) caption += QStringLiteral(", ") + text::ToQString(province.FullName);
      found.push_back({unit, caption});
    }
  }
  return found;
}

/// A menu that is shown without waiting for an answer, and so must look after itself.
QMenu* newMenu(const QString& name, QWidget* parent) {
  auto* menu = new QMenu(parent);
  menu->setObjectName(name);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  return menu;
}

}  // namespace

QMenu* newAddMenu(const model::GameState& game, const std::string& place,
                  const std::string& firstPower,
                  const std::function<void(const model::Unit&)>& choose, QWidget* parent) {
  const std::vector<Offer> first = offers(game, place, firstPower);
  if (first.empty()) return nullptr;
  QMenu* menu = newMenu(QStringLiteral("mnuAddUnit"), parent);
  const auto add = [&choose, menu](QMenu& to, const Offer& offer, const QString& caption) {
    QAction* entry = to.addAction(captionText(caption));
    QObject::connect(entry, &QAction::triggered, menu,
                     [choose, unit = offer.unit] { choose(unit); });
    return entry;
  };
  const int firstRow = model::FindCountry(firstPower);
  for (const Offer& offer : first) {
    QAction* entry =
        add(*menu, offer,
            QStringLiteral("%1: %2").arg(powerName(game.Countries, firstRow), offer.caption));
    entry->setIcon(powerIcon(game.Countries, firstRow));
  }
  // The units of the other powers go into submenus: all in one list would be hard to read.
  menu->addSeparator();
  for (int power = 1; power <= model::CountryCount; ++power) {
    if (power == firstRow) continue;
    QMenu* others =
        menu->addMenu(powerIcon(game.Countries, power), powerName(game.Countries, power));
    for (const Offer& offer : offers(game, place, game.Countries[power].Abbreviation))
      add(*others, offer, offer.caption);
  }
  return menu;
}

QMenu* newPlaceMenu(const model::Map& map, const std::vector<int>& locations,
                    const std::function<void(const std::string&)>& choose, QWidget* parent) {
  QMenu* menu = newMenu(QStringLiteral("mnuWhichPlace"), parent);
  for (const int row : locations) {
    const model::Province& province = map.Provinces[row];
    QAction* entry = menu->addAction(captionText(text::ToQString(province.FullName)));
    QObject::connect(entry, &QAction::triggered, menu,
                     [choose, name = province.Name] { choose(name); });
  }
  return menu;
}

}  // namespace orb::ui
