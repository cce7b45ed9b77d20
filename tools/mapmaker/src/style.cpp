#include "style.h"

#include "json.h"

#include <stdexcept>

namespace mapmaker {
namespace {

QColor ToColour(const QJsonValue& value) {
  const QColor colour(value.toString());
  if (!colour.isValid())
    throw std::runtime_error("styles.json: no colour: " + value.toString().toStdString());
  return colour;
}

/// A pen that is left out draws nothing.
Pen ToPen(const QJsonValue& value) {
  if (!value.isObject()) return {};
  Pen pen{ToColour(value["colour"]), value["width"].toDouble(), {}};
  for (const QJsonValue dash : value["dashes"].toArray())
    pen.Dashes.push_back(dash.toDouble());
  return pen;
}

LandTint ToTint(const QJsonValue& value) {
  return {ToColour(value["fill"]), ToColour(value["rim"])};
}

Style ToStyle(const QJsonValue& json) {
  Style style;
  style.File = json["file"].toString().toStdString();
  style.Colours = static_cast<std::size_t>(json["colours"].toInt());
  style.Sea = ToColour(json["sea"]);
  for (const QJsonValue belt : json["shore_belts"].toArray()) {
    style.ShoreBelts.push_back(
        {belt["distance"].toDouble(), ToColour(belt["fill"]), ToPen(belt["edge"])});
  }
  style.SeaBorder = ToPen(json["sea_border"]);
  style.InlandWater = ToColour(json["inland_water"]);
  const QJsonObject homes = json["homes"].toObject();
  for (auto home = homes.begin(); home != homes.end(); ++home)
    style.Homes[home.key().toStdString()] = ToTint(home.value());
  style.RimWidth = json["rim_width"].toDouble();
  style.OutOfPlay = ToTint(json["out_of_play"]);
  const QJsonValue hatch = json["out_of_play_hatch"];
  style.OutOfPlayHatch = {ToPen(hatch["stroke"]), hatch["distance"].toDouble()};
  style.Coast = ToPen(json["coast"]);
  style.ProvinceBorder = ToPen(json["province_border"]);
  style.HomeBorder = ToPen(json["home_border"]);
  style.StraitBank = ToPen(json["strait_bank"]);
  style.StraitWater = ToPen(json["strait_water"]);
  style.Neatline = ToPen(json["neatline"]);
  return style;
}

}  // namespace

std::vector<Style> ReadStyles(const QString& path) {
  std::vector<Style> styles;
  for (const QJsonValue entry : ReadJson(path)["styles"].toArray())
    styles.push_back(ToStyle(entry));
  return styles;
}

}  // namespace mapmaker
