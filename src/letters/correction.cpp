#include "letters/correction.h"

#include "adjudication/possible_orders.h"
#include "model/counts.h"
#include "model/lookups.h"
#include "report/report_lines.h"
#include "report/wrapped_text.h"

#include <algorithm>
#include <array>

namespace orb::letters {
namespace {

using model::GameState;
using model::Unit;
using session::Situation;

std::string SeasonAndStage(const GameState& game) {
  return SeasonText(game).append(", ").append(StageText(game));
}

std::string Or(const std::string& text, std::string_view nothing) {
  return text.empty() ? std::string(nothing) : text;
}

/// A line of the report about the moves, as it came out.
struct Move {
  std::string Order;  ///< "FRA A(Par) - Bur"
  std::string Result;
  std::string Reason;
};

/// The orders of the season's moves that somebody gave to a unit of the board.
std::vector<Move> MovesOf(const Situation& situation) {
  std::vector<Move> moves;
  const auto& lines = situation.Game.ReportLines;
  for (int i = 1; i <= lines.Count(); ++i) {
    const auto row = static_cast<std::size_t>(i - 1);
    if (row >= situation.Notes.size() || situation.Notes[row].Order.empty()) continue;
    const report::ReportLine line = report::TakeApart(lines[i]);
    // A move that bounced has no word in the report.
    const char* result = line.Failed ? "bounced" : "carried out";
    moves.push_back({line.Order, Or(line.Result, result), situation.Notes[row].Reason});
  }
  return moves;
}

/// "FRA A(Par)"
std::string_view UnitOf(const Move& move) {
  return std::string_view(move.Order).substr(0, move.Order.find(')') + 1);
}

class Comparison {
 public:
  Comparison(const Situation& first, const Situation& second)
      : before_(first.Game), after_(second.Game) {
    Whole(Subject::Title, "The title", before_.Title, after_.Title);
    Whole(Subject::Season, "The season", SeasonAndStage(before_), SeasonAndStage(after_));
    Players();
    if (before_.Season == after_.Season && before_.Year == after_.Year)
      Orders(MovesOf(first), MovesOf(second));
    Units();
    Owners();
    Retreats();
    FreeText();
  }

  std::vector<Correction> Take() { return std::move(found_); }

 private:
  void Add(Subject subject, std::string about, std::string before, std::string after,
           std::string sentence) {
    found_.push_back(
        {subject, std::move(about), std::move(before), std::move(after), std::move(sentence)});
  }

  void Whole(Subject subject, std::string_view what, const std::string& before,
             const std::string& after) {
    if (before == after) return;
    Add(subject, {}, before, after,
        std::string(what) + " is " + Or(after, "empty") + " instead of " + Or(before, "empty") +
            ".");
  }

  void Players() {
    for (int power = 1; power <= model::CountryCount; ++power) {
      const std::string& before = before_.Countries[power].PlayerName;
      const std::string& after = after_.Countries[power].PlayerName;
      if (before == after) continue;
      const std::string& name = after_.Countries[power].Name;
      Add(Subject::Player, after_.Countries[power].Abbreviation, before, after,
          name + " is played by " + Or(after, "nobody") + " instead of " + Or(before, "nobody") +
              ".");
    }
  }

  /// Nothing where one of the situations does not know how its moves came out.
  void Orders(std::vector<Move> before, const std::vector<Move>& after) {
    if (before.empty() || after.empty()) return;
    for (const Move& now : after) {
      auto was = std::ranges::find(before, now.Order, &Move::Order);
      if (was == before.end()) was = std::ranges::find(before, UnitOf(now), UnitOf);
      if (was == before.end()) {
        Add(Subject::Order, now.Order, {}, now.Result,
            now.Order + " was ordered, which was missing. " + now.Reason);
      } else {
        Ordered(*was, now);
        before.erase(was);
      }
    }
    for (const Move& was : before)
      Add(Subject::Order, was.Order, was.Result, {}, was.Order + " was not ordered.");
  }

  void Ordered(const Move& was, const Move& now) {
    if (was.Order != now.Order) {
      Add(Subject::Order, now.Order, was.Order, now.Order,
          now.Order + " was ordered instead of " + was.Order + ". " + now.Reason);
    } else if (was.Result != now.Result) {
      Add(Subject::Order, now.Order, was.Result, now.Result,
          "The result of " + now.Order + " is \"" + now.Result + "\" instead of \"" + was.Result +
              "\". " + now.Reason);
    }
  }

  /// Units are the same that stand in the same place; then those of which one has come from where
  /// the other stands; then those that have come from the same place.
  void Units() {
    std::vector<const Unit*> gone = UnitsOf(before_);
    std::vector<const Unit*> come = UnitsOf(after_);
    Pair(gone, come, [](const Unit& a, const Unit& b) { return a.Location == b.Location; });
    Pair(gone, come, [](const Unit& a, const Unit& b) {
      return a.Location == b.PreviousLocation || a.PreviousLocation == b.Location;
    });
    Pair(gone, come, [](const Unit& a, const Unit& b) {
      return !a.PreviousLocation.empty() && a.PreviousLocation != model::Unknown &&
             a.PreviousLocation == b.PreviousLocation;
    });
    for (const Unit* unit : gone) {
      Add(Subject::Unit, model::UnitText(*unit), Where(*unit), {},
          "There is no " + model::UnitText(*unit) + Dislodgement(*unit) + ".");
    }
    for (const Unit* unit : come) {
      Add(Subject::Unit, model::UnitText(*unit), {}, Where(*unit),
          "There is " + model::UnitText(*unit) + Dislodgement(*unit) + ", which was missing.");
    }
  }

  static std::vector<const Unit*> UnitsOf(const GameState& game) {
    std::vector<const Unit*> units;
    for (const Unit& unit : game.Units)
      units.push_back(&unit);
    return units;
  }

  template <class Same>
  void Pair(std::vector<const Unit*>& gone, std::vector<const Unit*>& come, Same same) {
    std::erase_if(gone, [&](const Unit* unit) {
      const auto other = std::ranges::find_if(come, [&](const Unit* candidate) {
        return candidate->Power == unit->Power && candidate->UnitType == unit->UnitType &&
               same(*unit, *candidate);
      });
      if (other == come.end()) return false;
      Moved(*unit, **other);
      come.erase(other);
      return true;
    });
  }

  static std::string Dislodgement(const Unit& unit) {
    if (unit.Status != model::Dislodged) return {};
    return unit.DislodgedFrom.empty() ? " dislodged"
                                      : " dislodged (attacked from " + unit.DislodgedFrom + ")";
  }

  static std::string Where(const Unit& unit) { return unit.Location + Dislodgement(unit); }

  void Moved(const Unit& before, const Unit& after) {
    const std::string from = Where(before);
    const std::string to = Where(after);
    if (from == to) return;
    if (before.Location != after.Location) {
      Add(Subject::Unit, model::UnitText(before), from, to,
          model::UnitText(before) + Dislodgement(before) + " is in " + to + ".");
      return;
    }
    const std::string is = Dislodgement(after);
    Add(Subject::Unit, model::UnitText(after), from, to,
        model::UnitText(after) + " is" + (is.empty() ? " not dislodged" : is) + ".");
  }

  void Owners() {
    for (int row = 1; row <= after_.Map->Provinces.Count(); ++row) {
      const std::string& before = before_.Provinces[row].Owner;
      const std::string& after = after_.Provinces[row].Owner;
      if (!model::IsCentre(*after_.Map, row) || before == after) continue;
      const std::string& name = after_.Map->Provinces[row].Name;
      Add(Subject::Owner, name, before, after,
          name + " belongs to " + Or(after, "nobody") + " instead of " + Or(before, "nobody") +
              ".");
    }
  }

  /// Where a unit may go that is dislodged in both.
  void Retreats() {
    for (const Unit& unit : after_.Units) {
      const auto same = std::ranges::find_if(before_.Units, [&](const Unit& other) {
        return model::UnitText(other) == model::UnitText(unit) && other.Status == model::Dislodged;
      });
      if (unit.Status != model::Dislodged || same == before_.Units.end()) continue;
      const std::string before = RetreatsOf(before_, *same);
      const std::string after = RetreatsOf(after_, unit);
      if (before == after) continue;
      Add(Subject::Retreat, model::UnitText(unit), before, after,
          model::UnitText(unit) + " may retreat to " + Or(after, "no place") + " instead of " +
              Or(before, "no place") + ".");
    }
  }

  static std::string RetreatsOf(const GameState& game, const Unit& unit) {
    std::string places;
    for (int row = 1; row <= game.Map->Provinces.Count(); ++row) {
      if (!adjudication::MayRetreatTo(game, unit, row)) continue;
      places.append(places.empty() ? "" : ", ").append(game.Map->Provinces[row].Name);
    }
    return places;
  }

  static std::string TextOf(const GameState& game) {
    std::string text;
    for (const std::string& line : game.TextLines)
      text.append(line).append("\n");
    return text;
  }

  void FreeText() {
    const std::string before = TextOf(before_);
    const std::string after = TextOf(after_);
    if (before != after) Add(Subject::Text, {}, before, after, "The free text is another one.");
  }

  const GameState& before_;
  const GameState& after_;
  std::vector<Correction> found_;
};

}  // namespace

std::vector<Correction> Corrections(const Situation& before, const Situation& after) {
  return Comparison(before, after).Take();
}

std::string CorrectionNotice(const Situation& before, const Situation& after) {
  std::string notice;
  report::AddWrapped(after.Game.Title, 0, notice);
  report::AddWrapped(SeasonAndStage(after.Game), 0, notice);
  notice.append("\n");
  const std::vector<Correction> corrections = Corrections(before, after);
  for (const Correction& correction : corrections)
    report::AddWrapped("- " + correction.Sentence, 2, notice);
  if (corrections.empty()) notice.append("There is nothing to correct.\n");
  return notice;
}

std::string_view NameOf(Subject subject) {
  constexpr std::array<std::string_view, 8> names{"title", "season", "player",  "order",
                                                  "unit",  "owner",  "retreat", "text"};
  return names[static_cast<std::size_t>(subject)];
}

}  // namespace orb::letters
