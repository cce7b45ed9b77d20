#include "adjudication/usual/settlement.h"

#include <cstdint>
#include <vector>

namespace orb::adjudication::usual {
namespace {

/// Keeps a verdict that is not open.
bool Note(Fates& fates, int unit, Verdict verdict) {
  if (verdict == Verdict::Open) return false;
  (verdict == Verdict::Yes ? fates.Yes : fates.No).Add(unit);
  return true;
}

UnitSet Open(UnitSet all, const Fates& fates) {
  return all - fates.Yes - fates.No;
}

/// Decides what the facts known so far force, and what that forces in turn.
void DecideForced(const Plans& plans, Known& known) {
  bool changed = true;
  while (changed) {
    changed = false;
    for (const int u : Open(plans.Convoyed, known.Paths))
      changed |= Note(known.Paths, u, HasPath(plans, known, u));
    for (const int u : Open(plans.Supports, known.Supports))
      changed |= Note(known.Supports, u, IsGiven(plans, known, u));
    for (const int u : Open(plans.Moves, known.Moves))
      changed |= Note(known.Moves, u, Succeeds(plans, known, u));
  }
}

/// The moves of the circle that the open move leads into: each waits for the next one to leave.
UnitSet CircleAhead(const Plans& plans, UnitSet open, int move) {
  UnitSet passed;
  while (open.Has(move) && !passed.Has(move)) {
    passed.Add(move);
    move = plans.UnitAt(plans.Of(move).Aim);
  }
  UnitSet circle;
  while (open.Has(move) && !circle.Has(move)) {
    circle.Add(move);
    move = plans.UnitAt(plans.Of(move).Aim);
  }
  return circle;
}

/// Decides all moves while every convoyed one is known to have its path or not. Then the supports
/// for a move against a unit that stays are all known, and so is that move; what stays open are
/// moves that wait for a unit to leave which waits for another, round to the first.
void DecideWithKnownPaths(const Plans& plans, Known& known, UnitSet& circles) {
  DecideForced(plans, known);
  for (UnitSet open = Open(plans.Moves, known.Moves); !open.IsEmpty();
       open = Open(plans.Moves, known.Moves)) {
    const UnitSet circle = CircleAhead(plans, open, open.First());
    // Only where two units stand in one place, which no play brings about, is there no circle.
    if (circle.IsEmpty()) known.Moves.No.Add(open.First());
    known.Moves.Yes = known.Moves.Yes | circle;
    circles = circles | circle;
    DecideForced(plans, known);
  }
}

/// The convoyed moves whose paths stay open when all that is forced has been decided, and for every
/// choice of which of them have their path, which of them then really have it. There are few: each
/// of them takes an army, a fleet and an attack on the fleet, so 13 at most on a board of 40 units.
class OpenPaths {
 public:
  using Choice = std::uint32_t;  ///< bit i: the i-th move has its path

  OpenPaths(const Plans& plans, const Known& known) : plans_(plans), known_(known) {
    for (const int u : Open(plans.Convoyed, known.Paths))
      moves_.push_back(u);
    outcomes_.resize(std::size_t{1} << moves_.size());
    for (Choice choice = 0; choice < outcomes_.size(); ++choice)
      outcomes_[choice] = Outcome(choice);
  }

  std::size_t Count() const { return moves_.size(); }
  int Move(std::size_t i) const { return moves_[i]; }

  /// Which moves really have their path when it is supposed that just those of the choice do.
  Choice After(Choice choice) const { return outcomes_[choice]; }

  /// Whether the path of move i ever depends on whether move j has its own.
  bool Depends(std::size_t i, std::size_t j) const {
    for (Choice choice = 0; choice < outcomes_.size(); ++choice) {
      const Choice changed = outcomes_[choice] ^ outcomes_[choice ^ (Choice{1} << j)];
      if ((changed >> i & 1U) != 0) return true;
    }
    return false;
  }

  /// All facts when just the moves of the choice have their path.
  Known Suppose(Choice choice, UnitSet& circles) const {
    Known known = known_;
    for (std::size_t i = 0; i < moves_.size(); ++i)
      Note(known.Paths, moves_[i], (choice >> i & 1U) != 0 ? Verdict::Yes : Verdict::No);
    DecideWithKnownPaths(plans_, known, circles);
    return known;
  }

 private:
  Choice Outcome(Choice choice) const {
    UnitSet ignored;
    const Known known = Suppose(choice, ignored);
    Choice outcome = 0;
    for (std::size_t i = 0; i < moves_.size(); ++i) {
      if (HasPath(plans_, known, moves_[i]) == Verdict::Yes) outcome |= Choice{1} << i;
    }
    return outcome;
  }

  const Plans& plans_;
  const Known& known_;
  std::vector<int> moves_;
  std::vector<Choice> outcomes_;
};

/// Which paths depend on which, by way of others too: bit j of row i for "i on j".
std::vector<OpenPaths::Choice> Dependences(const OpenPaths& paths) {
  std::vector<OpenPaths::Choice> rows(paths.Count());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j < rows.size(); ++j) {
      if (paths.Depends(i, j)) rows[i] |= OpenPaths::Choice{1} << j;
    }
  }
  for (std::size_t via = 0; via < rows.size(); ++via) {
    for (auto& row : rows) {
      if ((row >> via & 1U) != 0) row |= rows[via];
    }
  }
  return rows;
}

/// The choices for these paths alone that come out as they were supposed, the others as they are.
std::vector<OpenPaths::Choice> Consistent(const OpenPaths& paths, OpenPaths::Choice group,
                                          OpenPaths::Choice others) {
  std::vector<OpenPaths::Choice> found;
  // Every subset of the group, from none to all.
  OpenPaths::Choice part = 0;
  do {
    if ((paths.After(others | part) & group) == part) found.push_back(part);
    part = (part - group) & group;
  } while (part != 0);
  return found;
}

/// Decides the open paths group by group: those that depend on each other together, after those
/// that they depend on. A group that comes out in one way only is decided so; any other is a
/// paradox, and none of its moves has a path.
OpenPaths::Choice DecideOpenPaths(const OpenPaths& paths, UnitSet& paradoxes) {
  using Choice = OpenPaths::Choice;
  const std::vector<Choice> dependences = Dependences(paths);
  const auto groupOf = [&](std::size_t i) {
    Choice group = Choice{1} << i;
    for (std::size_t j = 0; j < paths.Count(); ++j) {
      const bool each = (dependences[i] >> j & 1U) != 0 && (dependences[j] >> i & 1U) != 0;
      if (each) group |= Choice{1} << j;
    }
    return group;
  };
  Choice chosen = 0;
  Choice decided = 0;
  const Choice all = (Choice{1} << paths.Count()) - 1;
  while (decided != all) {
    for (std::size_t i = 0; i < paths.Count(); ++i) {
      const Choice group = groupOf(i);
      const bool waits = (dependences[i] & ~group & ~decided) != 0;
      if ((decided >> i & 1U) != 0 || waits) continue;
      const std::vector<Choice> ways = Consistent(paths, group, chosen);
      if (ways.size() == 1) chosen |= ways.front();
      decided |= group;
      for (std::size_t j = 0; j < paths.Count() && ways.size() != 1; ++j) {
        if ((group >> j & 1U) != 0) paradoxes.Add(paths.Move(j));
      }
    }
  }
  return chosen;
}

}  // namespace

Settlement Settle(const Plans& plans) {
  Settlement settlement;
  Known& known = settlement.Known;
  DecideForced(plans, known);
  if (Open(plans.Convoyed, known.Paths).IsEmpty()) {
    DecideWithKnownPaths(plans, known, settlement.Circles);
    return settlement;
  }
  const OpenPaths paths(plans, known);
  const OpenPaths::Choice choice = DecideOpenPaths(paths, settlement.Paradoxes);
  known = paths.Suppose(choice, settlement.Circles);
  return settlement;
}

}  // namespace orb::adjudication::usual
