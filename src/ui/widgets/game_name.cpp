#include "ui/widgets/game_name.h"

#include "text/qt/text_codec.h"

#include <QObject>

#include <string>

namespace orb::ui {
namespace {

QString stageName(model::Stage stage) {
  switch (stage) {
    case model::Stage::Moves:
      return QObject::tr("before moves");
    case model::Stage::Retreats:
      return QObject::tr("before retreats");
    case model::Stage::Adjustments:
      return QObject::tr("before adjustments");
    default:
      return QObject::tr("end");
  }
}

}  // namespace

QString gameName(const model::GameState& game) {
  const std::string season = SeasonText(game);
  return text::ToQString(game.Title.empty() ? season : game.Title + ", " + season);
}

QString stageCaption(const std::string& season, int year, model::Stage stage) {
  return QStringLiteral("%1 %2, %3").arg(text::ToQString(season)).arg(year).arg(stageName(stage));
}

}  // namespace orb::ui
