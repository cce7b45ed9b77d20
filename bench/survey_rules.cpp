#include "difference_kinds.h"

#include "adjudication/possible_orders.h"
#include "model/counts.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "model/seasons.h"
#include "orders/order_list.h"
#include "session/commands.h"
#include "session/comparison.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

// How often do ORB's own rules and the usual ones differ, and in what? Plays seeded random seasons,
// or a game that was kept with its orders, resolves each stage by both, and tells of those that
// differ by the kinds that the help topic on the differences has. docs/rules.md has the results.

namespace {

namespace adjudication = orb::adjudication;
namespace model = orb::model;
namespace orders = orb::orders;
namespace session = orb::session;

using adjudication::Resolution;
using model::GameState;
using orb::survey::DifferenceKinds;
using orb::survey::StagePair;

/// A stage that ORB's own rules refuse to resolve differs as a whole.
session::Differences FindDifferences(const GameState& before, const GameState& after,
                                     const Resolution& orb) {
  if (!orb.Completed) return {session::Difference{0, 0, "not resolved", {}, {}}};
  return session::Compare(session::Rules::Orb, before, after, orb);
}

/// Counts what differs.
class Survey {
 public:
  void Add(const GameState& before, const GameState& after, const Resolution& orb) {
    ++stages_;
    const session::Differences differences = FindDifferences(before, after, orb);
    if (differences.empty()) return;
    ++different_;
    GameState otherwise = before;
    model::Consent messages;
    const Resolution usual = session::ResolveStage(session::Rules::Usual, otherwise, messages);
    StagePair pair{before, after, orb, usual, {}};
    for (const session::Difference& difference : differences)
      pair.Different.set(static_cast<std::size_t>(difference.Order));
    if (Count(pair)) return;
    // What caused it is an order that itself came out the same.
    pair.Different.set();
    if (Count(pair)) return;
    ++other_;
    std::fprintf(stderr, "other:\n");
    for (const session::Difference& difference : differences)
      std::fprintf(stderr, "  %s: %s %s\n", difference.Text.c_str(), difference.Here.c_str(),
                   difference.There.c_str());
  }

  /// Counts the kinds that are found in the orders looked at; false: there are none.
  bool Count(const StagePair& pair) {
    bool known = false;
    for (std::size_t i = 0; i < DifferenceKinds.size(); ++i) {
      if (!DifferenceKinds[i].Fits(pair)) continue;
      known = true;
      if (counts_[i]++ == 0) examples_[i] = pair.Before;
    }
    return known;
  }

  void Print() const {
    std::printf("%d stages, %d (%.1f %%) differ\n", stages_, different_,
                100.0 * different_ / std::max(1, stages_));
    for (std::size_t i = 0; i < DifferenceKinds.size(); ++i)
      std::printf("| %s | %d |\n", DifferenceKinds[i].Name, counts_[i]);
    std::printf("| other | %d |\n", other_);
  }

  /// A game of each kind, as NN.orb, with its orders.
  void WriteExamples(const std::filesystem::path& directory) const {
    for (std::size_t i = 0; i < DifferenceKinds.size(); ++i) {
      if (counts_[i] == 0) continue;
      std::string name(i < 9 ? "0" : "");
      name.append(std::to_string(i + 1));
      model::ReplaceFile(directory / (name + ".orb"), model::FormatGameFile(examples_[i]));
      std::string lines;
      for (const std::string& line : orders::StageList(examples_[i]))
        lines.append(line).append("\n");
      model::ReplaceFile(directory / (name + ".txt"), lines);
    }
  }

 private:
  int stages_ = 0;
  int different_ = 0;
  int other_ = 0;
  std::array<int, DifferenceKinds.size()> counts_{};
  std::array<GameState, DifferenceKinds.size()> examples_;
};

/// Plays one game at random, as people do with slips.
class Player {
 public:
  Player(unsigned seed, const std::filesystem::path& data) : random_(seed), data_(data) {}

  void Play(std::shared_ptr<const model::Map> map, int& seasons, Survey& survey) {
    GameState game = model::EmptyGame(std::move(map));
    model::NewGame(game, data_);
    for (int year = 0; year < 10 && seasons > 0; ++year) {
      for (int half = 0; half < 2 && seasons > 0; ++half, --seasons) {
        while (game.Stage != model::Stage::Finished) {
          OrderStage(game);
          if (!Resolve(game, survey)) return;
        }
        model::NextSeason(game);
      }
    }
  }

 private:
  int Below(std::size_t bound) { return static_cast<int>(random_() % bound); }
  bool Chance(int percent) { return Below(100) < percent; }
  const std::string& Any(const std::vector<std::string>& lines) {
    return lines[static_cast<std::size_t>(Below(lines.size()))];
  }

  bool Resolve(GameState& game, Survey& survey) {
    const GameState before = game;
    model::Consent messages;
    const Resolution resolution = session::ResolveStage(session::Rules::Orb, game, messages);
    if (!resolution.Completed) {
      // The stage waits for removals: it is resolved again when all have been named.
      survey.Add(before, game, resolution);
      game = before;
      orders::StageList(game) = AllRemovals(game);
      const GameState again = game;
      const Resolution done = session::ResolveStage(session::Rules::Orb, game, messages);
      if (done.Completed) survey.Add(again, game, done);
      return done.Completed;
    }
    survey.Add(before, game, resolution);
    return true;
  }

  /// Every unit that must go, the last ones first.
  static std::vector<std::string> AllRemovals(const GameState& game) {
    std::vector<std::string> lines;
    for (const model::Country& country : game.Countries) {
      const model::PowerCount count = model::CountPower(game, country.Abbreviation);
      int surplus = count.Units - count.Centres;
      for (int u = game.Units.Count(); u >= 1 && surplus > 0; --u) {
        const model::Unit& unit = game.Units[u];
        if (unit.Power != country.Abbreviation) continue;
        std::string line = unit.Power;
        line.append(" disband ").append(unit.UnitType).append("(").append(unit.Location);
        lines.push_back(line.append(")"));
        --surplus;
      }
    }
    return lines;
  }

  void OrderStage(GameState& game) {
    std::vector<std::string>& list = orders::StageList(game);
    list.clear();
    const adjudication::PossibleOrders possible(game);
    for (int u = 1; u <= game.Units.Count(); ++u) {
      const std::vector<std::string> lines = possible.OfUnit(u);
      if (!lines.empty() && !Chance(3)) AddOrder(game, lines, list);
    }
    for (int power = 1; power <= model::CountryCount; ++power)
      AddAdjustments(game, power, possible.OfPower(power), list);
    if (game.Stage == model::Stage::Moves) Assist(game, possible, list);
    if (list.size() > 40) list.resize(40);
  }

  void AddOrder(const GameState& game, const std::vector<std::string>& lines,
                std::vector<std::string>& list) {
    // Mostly moves, of which there are few among all that is possible.
    std::vector<std::string> moves;
    std::ranges::copy_if(lines, std::back_inserter(moves), [](const std::string& line) {
      return line.find(") - ") != std::string::npos && line.find(" S ") == std::string::npos &&
             line.find(" C ") == std::string::npos;
    });
    const bool moving = !moves.empty() && Chance(75);
    list.push_back(WithSlip(game, moving ? Any(moves) : Any(lines)));
    if (Below(1000) == 0) list.push_back(Any(lines));
  }

  /// Some units help what others were ordered to do.
  void Assist(const GameState& game, const adjudication::PossibleOrders& possible,
              std::vector<std::string>& list) {
    for (int u = 1; u <= game.Units.Count(); ++u) {
      if (!Chance(45)) continue;
      std::vector<std::string> helping;
      for (const std::string& line : possible.OfUnit(u)) {
        const auto verb = std::min(line.find(" S "), line.find(" C "));
        if (verb == std::string::npos) continue;
        const std::string helped = line.substr(verb + 3);
        const bool fits = std::ranges::any_of(
            list, [&](const std::string& other) { return other.ends_with(helped); });
        if (fits) helping.push_back(line);
      }
      if (helping.empty()) continue;
      const std::string& line = Any(helping);
      const std::string_view unit = orders::UnitPart(line);
      std::erase_if(list, [&](const std::string& other) { return other.starts_with(unit); });
      list.push_back(WithSlip(game, line));
    }
  }

  void AddAdjustments(const GameState& game, int power, const std::vector<std::string>& lines,
                      std::vector<std::string>& list) {
    if (lines.empty()) return;
    const model::PowerCount count = model::CountPower(game, model::PowerName(power));
    const int wanted = count.Centres - count.Units;
    const char* verb = wanted > 0 ? " build " : " disband ";
    std::vector<std::string> fitting;
    std::ranges::copy_if(lines, std::back_inserter(fitting), [&](const std::string& line) {
      return line.find(verb) != std::string::npos;
    });
    const int number = std::abs(wanted) - (Chance(10) ? 1 : 0) + (Chance(3) ? 1 : 0);
    for (int i = 0; i < number && !fitting.empty(); ++i) {
      list.push_back(Any(fitting));
      if (!Chance(3)) std::erase(fitting, std::string(list.back()));
    }
  }

  /// Now and then a coast is left out, or the place is another one.
  std::string WithSlip(const GameState& game, std::string line) {
    const auto coast = line.find('.');
    if (coast != std::string::npos && Chance(10)) line.erase(coast, 2);
    if (Chance(1) && line.size() > 3) {
      const int row = 1 + Below(static_cast<std::size_t>(game.Map->Provinces.Count()));
      const auto last = line.find_last_of(" (");
      if (!line.ends_with(')') && !line.ends_with("hold"))
        line.replace(last + 1, std::string::npos, model::LocationName(*game.Map, row));
    }
    return line;
  }

  std::mt19937 random_;
  std::filesystem::path data_;
};

/// Resolves the stages of a game as the example is kept: beside each situation, in the order of
/// their names, the orders of the stage that follows, STAGE.txt; STAGE.report.txt is none.
void AddKeptGame(const std::filesystem::path& folder, std::shared_ptr<const model::Map> map,
                 Survey& survey) {
  std::set<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    files.insert(entry.path());
  std::map<std::string, std::filesystem::path> situations;
  for (const std::filesystem::path& file : files) {
    const std::string stage = file.stem().string();
    if (file.extension() == ".orb") situations[stage] = file;
  }
  for (const std::filesystem::path& file : files) {
    const std::string stage = file.stem().string();
    const auto after = situations.lower_bound(stage);
    const bool isOrders = file.extension() == ".txt" && stage.find('.') == std::string::npos;
    if (!isOrders || after == situations.begin()) continue;
    session::Situation situation{model::EmptyGame(map)};
    model::Consent messages;
    session::ReadGame(situation, std::prev(after)->second, messages);
    session::ReplaceOrdersByText(situation, model::ReadFile(file), {}, session::Doubtful::Accepted,
                                 messages);
    const GameState before = situation.Game;
    const Resolution resolution =
        session::ResolveStage(session::Rules::Orb, situation.Game, messages);
    survey.Add(before, situation.Game, resolution);
  }
}

}  // namespace

/// Usage: survey_rules [SEASONS [SEED [FOLDER FOR EXAMPLES]]], or survey_rules FOLDER of a game.
int main(int argc, char** argv) {
  int seasons = argc > 1 ? std::atoi(argv[1]) : 100'000;
  const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
  const std::filesystem::path data = std::filesystem::path(ORB_SOURCE_DIR) / "data";
  const auto map = model::LoadMap(data);
  Survey survey;
  if (argc == 2 && std::filesystem::is_directory(argv[1])) {
    AddKeptGame(argv[1], map, survey);
    survey.Print();
    return EXIT_SUCCESS;
  }
  for (unsigned game = 0; seasons > 0; ++game)
    Player(seed + game, data).Play(map, seasons, survey);
  survey.Print();
  if (argc > 3) survey.WriteExamples(argv[3]);
}
