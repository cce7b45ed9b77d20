#include "ui/widgets/place_text.h"

#include "model/place.h"
#include "text/qt/text_codec.h"

#include <QObject>
#include <QStringList>

namespace orb::ui {
namespace {

using text::ToQString;

QString ownerText(const model::GameState& game, int row) {
  const int owner = model::FindCountry(game.Provinces[row].Owner);
  return owner == 0 ? QObject::tr("neutral supply centre")
                    : QObject::tr("supply centre of %1").arg(ToQString(game.Countries[owner].Name));
}

QString unitText(const model::GameState& game, const model::Unit& unit) {
  const int power = model::FindCountry(unit.Power);
  // A unit's power may be one that only the file knows.
  const QString owner = ToQString(power == 0 ? unit.Power : game.Countries[power].Name);
  const QString type = unit.UnitType == "A" ? QObject::tr("army") : QObject::tr("fleet");
  QString text = QObject::tr("%1 of %2").arg(type, owner);
  if (unit.Status == model::Dislodged) {
    text = QObject::tr("dislodged ") + text;
    if (!unit.DislodgedFrom.empty())
      text += QObject::tr(" (from %1)").arg(ToQString(unit.DislodgedFrom));
  }
  return text;
}

}  // namespace

QString placeText(const model::GameState& game, int row) {
  if (row == 0) return {};
  const model::Province& place = game.Map->Provinces[row];
  QStringList parts{
      QStringLiteral("%1 (%2)").arg(ToQString(place.FullName), ToQString(place.Name))};
  if (place.IsSupplyCentre != 0) parts << ownerText(game, row);
  for (const model::Unit& unit : game.Units) {
    if (model::SamePlace(unit.Location, place.Name)) parts << unitText(game, unit);
  }
  return parts.join(QStringLiteral(" \u2013 "));
}

}  // namespace orb::ui
