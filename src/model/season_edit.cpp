#include "model/season_edit.h"

#include "text/strings.h"

#include <algorithm>
#include <utility>

namespace orb::model {

bool StageIsBefore(Stage stage, Stage other) {
  return stage < other;
}

SeasonFacts SeasonFactsOf(const GameState& game) {
  SeasonFacts facts{game.Title, game.Season, game.Year, game.Stage, {}, {}};
  std::transform(game.Countries.begin(), game.Countries.end(), facts.PlayerNames.begin(),
                 [](const Country& country) { return country.PlayerName; });
  facts.TextLines.assign(game.TextLines.begin(), game.TextLines.end());
  return facts;
}

void EditSeason(GameState& game, const SeasonFacts& facts) {
  Table<std::string, TextLineBound> lines;
  for (const std::string& line : facts.TextLines)
    lines.Append(line);
  game.TextLines = std::move(lines);
  if (StageIsBefore(facts.Stage, game.Stage)) game.ReportLines.SetCount(0);
  game.Title = text::Trim(facts.Title).empty() ? std::string(DefaultTitle) : facts.Title;
  game.Season = facts.Season;
  game.Year = facts.Year;
  game.Stage = facts.Stage;
  for (int i = 1; i <= CountryCount; ++i)
    game.Countries[i].PlayerName = facts.PlayerNames.at(static_cast<std::size_t>(i - 1));
}

}  // namespace orb::model
