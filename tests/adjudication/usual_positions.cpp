#include "adjudication/usual_positions.h"

#include "model/lookups.h"
#include "support/boards.h"

#include <algorithm>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using model::Unit;

class Crowd {
 public:
  explicit Crowd(unsigned seed) : random_(seed), game_(EmptyBoard("Spring", "moves")) {
    powers_ = 2 + Below(4);
    isCareful_ = Chance(50);
  }

  GameState Melee() {
    const std::string middle = Place("");
    Settle(middle, 4 + Below(9));
    if (Chance(70)) goal_ = Any(Near(IsWater(middle) ? "F" : "A", middle.substr(0, 3)));
    for (int u = 1; u <= game_.Units.Count(); ++u)
      plans_.push_back(Chance(65) ? "- " + Aim(game_.Units[u]) : "hold");
    if (Chance(20)) Circle();
    for (int convoys = Below(4); convoys > 0; --convoys)
      Ferry();
    Finish();
    return game_;
  }

  /// One to three armies at sea, each landing on the support that decides over the next one's
  /// fleet; the last on that of the first. Some of it left out or doubled, and others in between.
  GameState Paradox() {
    const int links = Chance(30) ? 1 : 2 + Below(2);
    std::vector<std::string> seas;
    for (int tries = 0; tries < 500 && static_cast<int>(seas.size()) < links; ++tries) {
      const std::string sea = Place("F");
      const bool isNear = seas.empty() || Touch("F", seas.back(), sea) ||
                          (links == 3 && Touch("F", seas.front(), sea));
      const bool isNew = std::find(seas.begin(), seas.end(), sea) == seas.end();
      if (IsWater(sea) && isNear && isNew) seas.push_back(sea);
    }
    for (const std::string& sea : seas)
      Add("F", sea, "hold", 1);
    for (std::size_t i = 0; i < seas.size(); ++i)
      Link(seas[i], Chance(75) ? seas[(i + 1) % seas.size()] : Any(seas));
    const int crowd = std::min(game_.Units.Count() + Below(4), 16);
    Settle(seas.front(), crowd);
    while (static_cast<int>(plans_.size()) < game_.Units.Count()) {
      const Unit& unit = game_.Units[static_cast<int>(plans_.size()) + 1];
      plans_.push_back(Chance(50) ? "- " + Aim(unit) : "hold");
    }
    if (Chance(25)) Ferry();
    if (Chance(15)) plans_[static_cast<std::size_t>(Below(game_.Units.Count()))] = "hold";
    Finish();
    return game_;
  }

 private:
  int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
  bool Chance(int percent) { return Below(100) < percent; }
  const std::string& Plan(int unit) const { return plans_[static_cast<std::size_t>(unit - 1)]; }

  /// Any place where a unit of the type can stand; of any type if it is empty.
  std::string Place(const std::string& type) {
    for (;;) {
      const model::Map& map = *RealMap();
      const std::string& name = map.Provinces[1 + Below(map.Provinces.Count())].Name;
      if (type.empty() || model::CanStandIn(map, type, name)) return name;
    }
  }

  static bool Touch(const std::string& type, const std::string& a, const std::string& b) {
    return model::IsAdjacent(*RealMap(), type, a, b);
  }
  static bool IsWater(const std::string& place) { return place[1] >= 'A' && place[1] <= 'Z'; }

  static const std::vector<std::string>& Near(std::string_view type, const std::string& place) {
    static std::map<std::string, std::vector<std::string>> known;
    auto& near = known[std::string(type).append(place)];
    if (!near.empty()) return near;
    for (const model::Province& other : RealMap()->Provinces) {
      if (Touch(std::string(type), place, other.Name)) near.push_back(other.Name);
    }
    return near;
  }

  template <class Item>
  Item Any(const std::vector<Item>& items) {
    return items[static_cast<std::size_t>(Below(static_cast<int>(items.size())))];
  }

  bool Add(const std::string& type, const std::string& place) {
    if (!model::CanStandIn(*RealMap(), type, place) || model::FindUnitAt(game_, place) != 0) {
      return false;
    }
    Unit& unit = game_.Units.Append();
    unit.Power = game_.Countries[1 + Below(powers_)].Abbreviation;
    unit.UnitType = type;
    unit.Location = place;
    return true;
  }
  /// Mostly of the given power.
  bool Add(const std::string& type, const std::string& place, const std::string& plan, int power) {
    if (!Add(type, place)) return false;
    if (Chance(94)) game_.Units[game_.Units.Count()].Power = game_.Countries[power].Abbreviation;
    plans_.push_back(plan);
    return true;
  }

  /// Fills the neighbourhood of a place.
  void Settle(const std::string& middle, int units) {
    std::vector<std::string> region = {middle, middle.substr(0, 3)};
    for (int tries = 0; tries < 300 && game_.Units.Count() < units; ++tries) {
      const std::string place = Any(region);
      for (const char* type : {"A", "F"}) {
        const auto& near = Near(type, place);
        if (!near.empty() && region.size() < 14) region.push_back(Any(near));
      }
      Add(IsWater(place) || Chance(40) ? "F" : "A", place);
    }
  }

  std::string Aim(const Unit& unit) {
    const auto& near = Near(unit.UnitType, unit.Location);
    if (near.empty() || Chance(4)) return Place("");
    const auto goal = std::find(near.begin(), near.end(), goal_);
    if (goal != near.end() && Chance(60)) return goal_;
    std::string aim = Any(near);
    for (int tries = 0; tries < 2 && model::FindUnitAt(game_, aim) == 0; ++tries)
      aim = Any(near);
    return aim;
  }

  /// Sends units round, each to where the next one stands.
  void Circle() {
    std::vector<int> ring = {1 + Below(game_.Units.Count())};
    for (int tries = 0; tries < 40; ++tries) {
      const Unit& last = game_.Units[ring.back()];
      const int next = model::FindUnitAt(game_, Aim(last));
      if (next == 0) continue;
      const auto seen = std::find(ring.begin(), ring.end(), next);
      if (seen == ring.end()) {
        ring.push_back(next);
        continue;
      }
      if (ring.end() - seen < 3) continue;
      ring.erase(ring.begin(), seen);
      for (std::size_t i = 0; i < ring.size(); ++i) {
        plans_[static_cast<std::size_t>(ring[i] - 1)] =
            "- " + game_.Units[ring[(i + 1) % ring.size()]].Location;
      }
      return;
    }
  }

  /// Sends an army by sea, next door too, and has fleets carry it: mostly enough, at times all.
  void Ferry() {
    const int army = 1 + Below(game_.Units.Count());
    const Unit& unit = game_.Units[army];
    if (unit.UnitType != "A" || Near("F", unit.Location).empty()) return;
    std::vector<int> fleets;
    std::vector<std::string> shores;
    std::string at = unit.Location;
    for (int tries = 0; tries < 12; ++tries) {
      const int fleet = model::FindUnitAt(game_, Any(Near("F", at)));
      if (fleet == 0 || !IsWater(game_.Units[fleet].Location)) continue;
      at = game_.Units[fleet].Location;
      fleets.push_back(fleet);
      for (const std::string& shore : Near("F", at)) {
        if (!IsWater(shore) && shore.substr(0, 3) != unit.Location) shores.push_back(shore);
      }
      if (Chance(30)) break;
    }
    if (shores.empty()) return;
    const std::string shore = Any(shores);
    const std::string move = "- " + shore;
    plans_[static_cast<std::size_t>(army - 1)] = move;
    const int there = model::FindUnitAt(game_, shore);
    if (there != 0 && Chance(30))
      plans_[static_cast<std::size_t>(there - 1)] = "- " + unit.Location;
    for (const int fleet : fleets) {
      if (Chance(96)) {
        plans_[static_cast<std::size_t>(fleet - 1)] = "C " + model::UnitText(unit) + " " + move;
      }
    }
  }

  /// An army carried over one sea lands on a fleet whose support decides over the next sea.
  void Link(const std::string& sea, const std::string& next) {
    std::vector<std::string> shores;
    for (const std::string& shore : Near("F", sea)) {
      const bool isFree = model::FindUnitAt(game_, shore) == 0;
      if (!IsWater(shore) && Touch("F", shore, next) && isFree) shores.push_back(shore);
    }
    for (int tries = 0; tries < 60 && !shores.empty(); ++tries) {
      const std::string shore = Any(shores);
      const std::string start = Any(Near("F", sea)).substr(0, 3);
      const std::string rival = Any(Near("F", next));
      const std::string landing = "- " + (Chance(80) ? shore.substr(0, 3) : shore);
      if (shore.starts_with(start) || model::FindUnitAt(game_, rival) != 0 ||
          rival.starts_with(start) || rival.starts_with(shore.substr(0, 3)) ||
          !Add("A", start, landing, 1)) {
        continue;
      }
      const int army = game_.Units.Count();
      const int fleet = model::FindUnitAt(game_, sea);
      const std::string convoy = "C " + model::UnitText(game_.Units[army]) + " " + landing;
      plans_[static_cast<std::size_t>(fleet - 1)] = convoy;
      const int target = model::FindUnitAt(game_, next);
      Add("F", rival, "- " + next, 2);
      const std::string attack = model::UnitText(game_.Units[game_.Units.Count()]) + " - " + next;
      const std::string defence = model::UnitText(game_.Units[target]) + " hold";
      const bool attacks = Chance(60);
      Add("F", shore, "S " + (attacks ? attack : defence), 2);
      if (!attacks || Chance(20)) {
        Add("F", Any(Near("F", next)), "S " + (Chance(85) ? attack : defence), 2);
      }
      if (Chance(20)) Add("F", Any(Near("F", sea)), convoy, 1);
      return;
    }
  }

  /// Lets units that hold help others, writes all down, not always well, and spoils some lines.
  void Finish() {
    for (int u = 1; u <= game_.Units.Count(); ++u) {
      if (Plan(u) == "hold" && Chance(75)) Support(u);
    }
    for (int u = 1; u <= game_.Units.Count(); ++u) {
      if (isCareful_ || Chance(96)) game_.OrdersList.push_back(Line(u));
      if (isCareful_) continue;
      if (Chance(4)) game_.OrdersList.push_back(Line(u));
      if (Chance(1)) game_.OrdersList.push_back(Line(1 + Below(game_.Units.Count())) + "x");
      if (!Chance(3)) continue;
      std::string other = model::UnitText(game_.Units[u]) + " - " + Aim(game_.Units[u]);
      if (Chance(30)) other.replace(0, 3, game_.Countries[1 + Below(7)].Abbreviation);
      if (Chance(30)) other[4] = other[4] == 'A' ? 'F' : 'A';
      game_.OrdersList.push_back(other);
    }
    std::shuffle(game_.OrdersList.begin(), game_.OrdersList.end(), random_);
  }

  void Support(int u) {
    for (int tries = 0; tries < 12; ++tries) {
      const int other = 1 + Below(game_.Units.Count());
      const bool ofMove = Plan(other).starts_with("- ");
      const std::string place = ofMove ? Plan(other).substr(2) : game_.Units[other].Location;
      if (other == u || !model::CanSupportInto(*RealMap(), game_.Units[u], place)) continue;
      if (!ofMove && Chance(50)) continue;
      const std::string what = Chance(3) ? "- " + Aim(game_.Units[other])
                               : ofMove  ? Plan(other)
                                         : "hold";
      plans_[static_cast<std::size_t>(u - 1)] =
          "S " + model::UnitText(game_.Units[other]) + " " + what;
      return;
    }
  }

  /// A unit's order as a hasty player writes it: coasts dropped, added or mixed up, powers left
  /// out.
  std::string Line(int u) {
    std::istringstream parts(model::UnitText(game_.Units[u]) + " " + Plan(u));
    std::string line;
    const std::string power = game_.Units[u].Power;
    for (std::string part; parts >> part;) {
      if (!line.empty() && part == power && Chance(50)) continue;
      line += (line.empty() ? "" : " ") + Blurred(part);
    }
    return line;
  }

  std::string Blurred(const std::string& part) {
    if (isCareful_ || !Chance(30)) return part;
    for (const char* name : {"Bul", "Spa", "Stp"}) {
      const auto at = part.find(name);
      if (at == std::string::npos) continue;
      const std::string coast = Chance(60)                        ? ""
                                : std::string_view(name) != "Bul" ? (Chance(50) ? ".n" : ".s")
                                : Chance(50)                      ? ".e"
                                                                  : ".s";
      const auto end = part.find(')', at);
      return part.substr(0, at + 3) + coast + (end == std::string::npos ? "" : ")");
    }
    return part;
  }

  std::mt19937 random_;
  GameState game_;
  std::vector<std::string> plans_;  ///< of the units, in their order
  std::string goal_;                ///< a place that many want
  int powers_ = 0;
  bool isCareful_ = false;  ///< its lines are as they should be
};

}  // namespace

GameState MeleeOf(unsigned seed) {
  return Crowd(seed).Melee();
}

GameState ParadoxOf(unsigned seed) {
  return Crowd(seed).Paradox();
}

}  // namespace orb::tests
