#include "adjudication/usual_checker.h"

#include "adjudication/usual_reading.h"

#include <algorithm>
#include <bit>
#include <map>
#include <optional>

namespace orb::tests {
namespace {

using adjudication::Ruling;

int CountOf(Bits bits) {
  return std::popcount(bits);
}

/// One assignment of success to moves, and all that follows from it. Sets of units.
struct World {
  Bits Succeeding = 0;  ///< moves
  Bits Dislodged = 0;
  Bits Pathed = 0;   ///< moves that have their path
  Bits Given = 0;    ///< supports
  Bits Barred = 0;   ///< moves without a path since it would depend on itself
  Bits Turning = 0;  ///< moves that succeed together or not at all
};

/// The units' duties and the definitions of the usual rules, word by word.
class Definitions {
 public:
  explicit Definitions(std::vector<Duty> duties) : duties_(std::move(duties)) {
    for (int u = 0; u < Count(); ++u) {
      const Duty& duty = Of(u);
      of_[duty.Power] |= Bit(u);
      at_[duty.From] = u;
      if (IsMove(u)) {
        moves_ |= Bit(u);
        into_[duty.To] |= Bit(u);
        if (duty.ByConvoy) convoyed_ |= Bit(u);
      }
    }
    for (int u = 0; u < Count(); ++u)
      Relate(u);
  }

  int Count() const { return static_cast<int>(duties_.size()); }
  const Duty& Of(int u) const { return duties_[static_cast<std::size_t>(u)]; }
  bool IsMove(int u) const { return Of(u).Kind == Duty::What::Move; }
  Bits Moves() const { return moves_; }
  Bits Convoyed() const { return convoyed_; }
  Bits MovesInto(int province) const { return Find(into_, province, Bits{0}); }
  int UnitAt(int province) const { return Find(at_, province, -1); }

  /// All that follows from an assignment. Convoyed moves with a path are those given, or those with
  /// a whole chain but for the ones that are barred.
  World Follow(Bits succeeding, std::optional<Bits> pathed, Bits barred) const {
    World world;
    world.Succeeding = succeeding;
    for (int u = 0; u < Count(); ++u) {
      if (!Has(succeeding, u) && (Rel(u).Attackers & succeeding) != 0) world.Dislodged |= Bit(u);
    }
    world.Pathed = moves_ & ~convoyed_;
    if (pathed) {
      world.Pathed |= *pathed;
    } else {
      world.Pathed |= WholeConvoys(world.Dislodged) & ~barred;
    }
    for (int u = 0; u < Count(); ++u) {
      if (Of(u).Kind == Duty::What::Support && !Has(world.Dislodged, u) &&
          (Rel(u).Cutters & world.Pathed) == 0) {
        world.Given |= Bit(u);
      }
    }
    return world;
  }

  /// Convoyed moves with a chain of fleets none of which is dislodged.
  Bits WholeConvoys(Bits dislodged) const {
    Bits whole = 0;
    for (int u = 0; u < Count(); ++u) {
      if (!Has(convoyed_, u)) continue;
      for (const Bits chain : Of(u).Chains) {
        if ((chain & dislodged) == 0) whole |= Bit(u);
      }
    }
    return whole;
  }

  /// Whether just those moves succeed that are said to.
  bool Holds(const World& world) const {
    for (int u = 0; u < Count(); ++u) {
      if (IsMove(u) && Succeeds(world, u) != Has(world.Succeeding, u)) return false;
    }
    return true;
  }

  int PreventStrength(const World& world, int u) const {
    if (!Has(world.Pathed, u)) return 0;
    const int opponent = Rel(u).Opponent;
    if (opponent >= 0 && Has(world.Succeeding, opponent)) return 0;
    return 1 + Supports(world, u);
  }

 private:
  /// Who has to do with a unit.
  struct Relations {
    Bits Attackers = 0;   ///< moves into its province
    Bits Cutters = 0;     ///< those that cut its support without dislodging it
    Bits Supporters = 0;  ///< whose support matches its order
    int Opponent = -1;    ///< head to head
    int Occupant = -1;    ///< the unit where its move leads
    Bits Friends = 0;     ///< units of the occupant's power
    Bits Rivals = 0;      ///< other moves to the same province
  };

  template <class Value>
  static Value Find(const std::map<int, Value>& map, int key, Value otherwise) {
    const auto found = map.find(key);
    return found == map.end() ? otherwise : found->second;
  }

  const Relations& Rel(int u) const { return relations_[static_cast<std::size_t>(u)]; }

  void Relate(int u) {
    Relations& rel = relations_.emplace_back();
    const Duty& duty = Of(u);
    rel.Attackers = MovesInto(duty.From);
    for (int v = 0; v < Count(); ++v) {
      if (Has(rel.Attackers, v) && Of(v).Power != duty.Power && Of(v).From != duty.Into) {
        rel.Cutters |= Bit(v);
      }
      if (Of(v).Kind == Duty::What::Support && Of(v).Helped == u) rel.Supporters |= Bit(v);
    }
    if (!IsMove(u)) return;
    rel.Rivals = MovesInto(duty.To) & ~Bit(u);
    const int there = UnitAt(duty.To);
    if (there < 0) return;
    rel.Occupant = there;
    rel.Friends = of_.at(Of(there).Power);
    const bool opposite = IsMove(there) && Of(there).To == duty.From;
    if (opposite && !duty.ByConvoy && !Of(there).ByConvoy) rel.Opponent = there;
  }

  int Supports(const World& world, int u, Bits except = 0) const {
    return CountOf(Rel(u).Supporters & world.Given & ~except);
  }

  /// Of the province with this unit in it.
  int HoldStrength(const World& world, int there) const {
    if (there < 0 || Has(world.Succeeding, there)) return 0;
    return IsMove(there) ? 1 : 1 + Supports(world, there);
  }

  int AttackStrength(const World& world, int u) const {
    if (!Has(world.Pathed, u)) return 0;
    const Relations& rel = Rel(u);
    const bool leaves =
        rel.Occupant < 0 || (Has(world.Succeeding, rel.Occupant) && rel.Opponent < 0);
    if (leaves) return 1 + Supports(world, u);
    if (Has(rel.Friends, u)) return 0;
    return 1 + Supports(world, u, rel.Friends);
  }

  int DefendStrength(const World& world, int u) const { return 1 + Supports(world, u); }

  bool Succeeds(const World& world, int u) const {
    const int strength = AttackStrength(world, u);
    const int opponent = Rel(u).Opponent;
    const int against =
        opponent >= 0 ? DefendStrength(world, opponent) : HoldStrength(world, Rel(u).Occupant);
    if (strength <= against) return false;
    for (Bits rest = Rel(u).Rivals; rest != 0; rest &= rest - 1) {
      if (strength <= PreventStrength(world, std::countr_zero(rest))) return false;
    }
    return true;
  }

  std::vector<Duty> duties_;
  std::vector<Relations> relations_;
  std::map<int, Bits> of_, into_;
  std::map<int, int> at_;
  Bits moves_ = 0;
  Bits convoyed_ = 0;
};

/// Every subset of a set of bits.
std::vector<Bits> Subsets(Bits bits) {
  std::vector<Bits> subsets;
  Bits subset = 0;
  do {
    subsets.push_back(subset);
    subset = (subset - bits) & bits;
  } while (subset != 0);
  return subsets;
}

/// Finds the one result, by trial.
class Trials {
 public:
  explicit Trials(const Definitions& rules) : rules_(rules) { Assign(0, 0); }

  World Decide(Ruled& ruled) const {
    Bits barred = 0;
    for (;;) {
      const std::vector<World> worlds = Satisfying({}, barred);
      const bool agree = std::all_of(worlds.begin(), worlds.end(), [&](const World& world) {
        return world.Pathed == worlds.front().Pathed;
      });
      if (!worlds.empty() && agree) {
        World world = Fullest(worlds, ruled);
        world.Barred = barred;
        for (const World& other : worlds)
          world.Turning |= world.Succeeding & ~other.Succeeding;
        return world;
      }
      const Bits more = SelfDependent(barred, ruled);
      if (more == 0) {
        ruled.Contradiction = "a paradox without a convoy";
        return worlds.empty() ? World() : worlds.front();
      }
      barred |= more;
    }
  }

 private:
  /// All assignments from this unit on. Two moves to one province never succeed together: one would
  /// have to be head to head with a move that succeeds, but then it fails itself.
  void Assign(int unit, Bits succeeding) {
    if (unit == rules_.Count()) {
      candidates_.push_back(succeeding);
      return;
    }
    Assign(unit + 1, succeeding);
    if (rules_.IsMove(unit) && (rules_.MovesInto(rules_.Of(unit).To) & succeeding) == 0) {
      Assign(unit + 1, succeeding | Bit(unit));
    }
  }

  std::vector<World> Satisfying(std::optional<Bits> pathed, Bits barred) const {
    std::vector<World> worlds;
    for (const Bits moves : candidates_) {
      const World world = rules_.Follow(moves, pathed, barred);
      if (rules_.Holds(world)) worlds.push_back(world);
    }
    return worlds;
  }

  /// Of worlds that differ in circles the one where all of them turn.
  static World Fullest(const std::vector<World>& worlds, Ruled& ruled) {
    if (worlds.empty()) {
      ruled.Contradiction = "no result for given paths";
      return {};
    }
    World fullest = worlds.front();
    for (const World& world : worlds) {
      if (CountOf(world.Succeeding) > CountOf(fullest.Succeeding)) fullest = world;
    }
    for (const World& world : worlds) {
      if ((world.Succeeding & ~fullest.Succeeding) != 0 || world.Given != fullest.Given ||
          world.Dislodged != fullest.Dislodged) {
        ruled.Contradiction = "results that differ in more than circles";
      }
    }
    return fullest;
  }

  // "Every convoyed move whose path so depends on itself." This is taken to mean: suppose of every
  // convoyed move whether it has its path, decide all else on that supposition, and see which have
  // a whole chain then. Moves whose chain comes out the same on every supposition that is left are
  // settled, step by step. A move depends on another one, or on itself, if supposing otherwise of
  // that one alone can change whether this one has its chain; and on all that the other depends on.
  // Those that depend on themselves have no path. It cannot matter whether a move that merely waits
  // for such a one is decided with it or after it: an army cuts one support when it lands, which
  // decides over one fleet, so that nobody outside waits for those that hang on each other in a
  // ring.

  using Outcome = std::map<Bits, Bits>;  ///< of suppositions: who has a whole chain then

  /// Those for which an outcome is to be known: they have a chain that could break or not.
  Outcome Suppose(Bits open, Bits barred, Ruled& ruled) const {
    Outcome outcome;
    for (const Bits supposed : Subsets(open)) {
      const World world = Fullest(Satisfying(supposed, barred), ruled);
      outcome[supposed] = rules_.WholeConvoys(world.Dislodged) & open;
    }
    return outcome;
  }

  /// Narrows the outcome to suppositions that agree with what is the same in all of them.
  static Bits Settle(Outcome& outcome, Bits open) {
    for (Bits settled = 0;;) {
      Bits always = open;
      Bits never = open;
      for (const auto& [supposed, chains] : outcome) {
        always &= chains;
        never &= ~chains;
      }
      if ((always | never) == settled) return open & ~settled;
      settled = always | never;
      std::erase_if(outcome, [&](const auto& entry) {
        return (always & ~entry.first) != 0 || (never & entry.first) != 0;
      });
    }
  }

  /// For each open move those that it depends on, also by way of others.
  static std::map<int, Bits> Dependence(const Outcome& outcome, Bits open) {
    std::map<int, Bits> on;
    for (int u = 0; u < 32; ++u) {
      if (!Has(open, u)) continue;
      for (int v = 0; v < 32; ++v) {
        if (!Has(open, v)) continue;
        for (const auto& [supposed, chains] : outcome) {
          if (Has(chains ^ outcome.at(supposed ^ Bit(v)), u)) on[u] |= Bit(v);
        }
      }
    }
    for (int steps = 0; steps < CountOf(open); ++steps) {
      for (auto& [u, others] : on) {
        for (int v = 0; v < 32; ++v) {
          if (Has(others, v)) others |= on[v];
        }
      }
    }
    return on;
  }

  Bits SelfDependent(Bits barred, Ruled& ruled) const {
    Bits open = 0;
    for (int u = 0; u < rules_.Count(); ++u) {
      if (Has(rules_.Convoyed() & ~barred, u) && !rules_.Of(u).Chains.empty()) open |= Bit(u);
    }
    Outcome outcome = Suppose(open, barred, ruled);
    open = Settle(outcome, open);
    Bits lost = 0;
    for (const auto& [u, others] : Dependence(outcome, open)) {
      if (Has(others, u)) lost |= Bit(u);
    }
    return lost;
  }

  const Definitions& rules_;
  std::vector<Bits> candidates_;
};

void TellFates(const model::GameState& game, const Definitions& rules, const World& world,
               Ruled& ruled) {
  for (int u = 0; u < rules.Count(); ++u) {
    const Duty& duty = rules.Of(u);
    UnitFate& fate = ruled.Units.emplace_back();
    fate.Location = game.Units[u + 1].Location;
    fate.Moves = rules.IsMove(u);
    fate.Supports = duty.Kind == Duty::What::Support;
    fate.Serves = Has(world.Succeeding | world.Given, u);
    fate.Dislodged = Has(world.Dislodged, u);
    fate.Why = Has(world.Barred, u)                  ? Ruling::Paradox
               : fate.Moves && !Has(world.Pathed, u) ? Ruling::NoPath
               : Has(world.Turning, u)               ? Ruling::Ring
                                                     : Ruling::None;
    if (fate.Moves && fate.Serves) fate.Location = model::LocationName(*game.Map, duty.Landing);
    for (int v = 0; fate.Dislodged && v < rules.Count(); ++v) {
      if (!Has(world.Succeeding & rules.MovesInto(duty.From), v) || rules.Of(v).ByConvoy) continue;
      fate.DislodgedFrom = game.Units[v + 1].Location;
    }
    ruled.Moves += fate.Moves ? 1 : 0;
    ruled.Paradoxes += fate.Why == Ruling::Paradox ? 1 : 0;
    ruled.HasCircle = ruled.HasCircle || fate.Why == Ruling::Ring;
    ruled.Convoyed += duty.ByConvoy && !duty.Chains.empty() ? 1 : 0;
  }
}

void TellStandoffs(const model::GameState& game, const Definitions& rules, const World& world,
                   Ruled& ruled) {
  for (int u = 0; u < rules.Count(); ++u) {
    const int strength = rules.IsMove(u) ? rules.PreventStrength(world, u) : 0;
    const int to = rules.Of(u).To;
    const int there = rules.UnitAt(to);
    const bool isEmpty = (rules.MovesInto(to) & world.Succeeding) == 0 &&
                         (there < 0 || Has(world.Succeeding, there));
    for (int v = 0; strength > 0 && isEmpty && v < u; ++v) {
      if (Has(rules.MovesInto(to), v) && rules.PreventStrength(world, v) == strength) {
        ruled.Standoffs.insert(model::LocationName(*game.Map, to));
      }
    }
  }
}

}  // namespace

Ruled RuleByTrial(const model::GameState& game) {
  const Definitions rules(ReadDuties(game));
  Ruled ruled;
  const World world = Trials(rules).Decide(ruled);
  TellFates(game, rules, world, ruled);
  TellStandoffs(game, rules, world, ruled);
  return ruled;
}

}  // namespace orb::tests
