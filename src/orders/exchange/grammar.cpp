#include "orders/exchange/grammar.h"

#include "orders/exchange/phrases.h"

#include <algorithm>

namespace orb::exchange {
namespace {

/// An order read so far, and the token behind it.
struct State {
  WrittenOrder Order;
  std::size_t Next = 0;
};

using States = std::vector<State>;

/// Reads one order; every step turns the readings so far into all that can follow. Nothing is
/// decided here: "Nor" stays all its places, and readings that make no sense in the situation are
/// dropped later.
class Grammar {
 public:
  Grammar(Phrases& phrases, model::Stage stage, Verb verb)
      : phrases_(phrases), stage_(stage), verb_(verb) {}

  std::vector<WrittenOrder> Read(Rest rest) {
    States all;
    // A power may also be a place, as in "Eng - Iri": so each front is tried both ways.
    for (const State& state : Front()) {
      Append(all, UnitFirst(state));
      Append(all, VerbFirst(state));
    }
    std::size_t furthest = 0;
    for (State& state : all) {
      TakeOwner(state);
      state.Order.End = state.Next;
      furthest = std::max(furthest, state.Next);
    }
    std::vector<WrittenOrder> orders;
    for (State& state : all) {
      const bool isWhole =
          rest == Rest::Anything ? state.Next == furthest : phrases_.Ends(state.Next);
      if (isWhole) orders.push_back(std::move(state.Order));
    }
    return orders;
  }

 private:
  static void Append(States& all, States more) {
    std::move(more.begin(), more.end(), std::back_inserter(all));
  }

  /// Takes "(GER)" behind an order for the power of the unit that it is about.
  void TakeOwner(State& state) {
    const PowerName name = phrases_.PowerInBrackets(state.Next);
    WrittenUnit& unit = state.Order.Other.Place.Rows.empty() ? state.Order.Unit : state.Order.Other;
    if (name.Power == 0 || unit.Power != 0) return;
    unit.Power = name.Power;
    state.Next = name.Next;
  }

  /// With and without a power at the front.
  States Front() {
    States states{State{}};
    const PowerName name = phrases_.Power(0);
    if (name.Power == 0) return states;
    State& named = states.emplace_back();
    named.Order.Power = name.Power;
    named.Next = phrases_.PastMarks(name.Next);
    return states;
  }

  /// Every reading of a unit into the given part of the order.
  States Units(const State& state, WrittenUnit WrittenOrder::*part) {
    States states;
    for (const auto& [unit, next] : phrases_.Units(state.Next)) {
      State& read = states.emplace_back(state);
      read.Order.*part = unit;
      read.Next = next;
    }
    return states;
  }

  States UnitFirst(const State& front) {
    States all;
    for (State state : Units(front, &WrittenOrder::Unit)) {
      const std::size_t via = phrases_.PastVia(state.Next);
      state.Order.ByConvoy = via != state.Next;
      const auto [verb, next] = phrases_.VerbAt(via);
      // Under "Builds:" or "Remove:" the heading gives the verb.
      if (verb == Verb::None) {
        if (!IsAllowed(verb_) || !phrases_.Ends(via)) {
          // A slip of the pen in "kiel denmerk" is looked for first.
          const bool isSlip = state.Order.Unit.Type == 0 && phrases_.IsNearPlace(state.Next);
          if (isSlip) Append(all, VerblessMoves(state));
          phrases_.Expected("it is not said what the unit does", via);
          if (!isSlip) Append(all, VerblessMoves(state));
          continue;
        }
        state.Order.What = verb_;
        all.push_back(std::move(state));
        continue;
      }
      state.Order.What = verb;
      state.Next = next;
      Append(all, Action(std::move(state), via));
    }
    return all;
  }

  /// "A Par Bur" is a move of somebody in a hurry.
  States VerblessMoves(State state) {
    const WrittenUnit& unit = state.Order.Unit;
    const bool isUnit = unit.Type != 0 || unit.Power != 0;
    state.Order.What = stage_ == model::Stage::Retreats ? Verb::Retreat : Verb::Move;
    state.Order.IsGuess = true;
    state.Order.IsBare = !isUnit;
    const std::size_t behind = phrases_.PastColon(state.Next);
    const bool hasColon = behind != state.Next;
    state.Next = behind;
    const bool isPair = hasColon || phrases_.IsPair(unit.Place);
    if (!IsAllowed(state.Order.What) || (!isUnit && !isPair)) return {};
    if (isUnit && !phrases_.IsWordAt(state.Next)) return {};
    States moves = Destinations(state);
    for (State& move : moves) {
      const std::size_t via = phrases_.PastVia(move.Next);
      move.Order.ByConvoy = via != move.Next;
      move.Next = via;
    }
    return moves;
  }

  /// What may stand behind a unit and its verb, which was written at the token.
  States Action(State state, std::size_t verbAt) {
    Verb& verb = state.Order.What;
    // A dash is written for a retreat as well.
    if (stage_ == model::Stage::Retreats && verb == Verb::Move) verb = Verb::Retreat;
    if (!IsAllowed(verb)) {
      phrases_.NotInStage(verbAt);
      return {};
    }
    switch (verb) {
      case Verb::Move: {
        States all = Moves(state);
        const std::size_t via = phrases_.PastVia(state.Next);
        if (via != state.Next) Append(all, ConvoyedMoves(state, via));
        return all;
      }
      case Verb::Hold:
        state.Next = phrases_.PastPlace(state.Next, state.Order.Unit.Place);
        return {state};
      case Verb::Support:
        return Supports(state);
      case Verb::Convoy:
        return Convoys(state);
      case Verb::Retreat:
        return Destinations(state);
      default:
        return {state};
    }
  }

  /// "by convoy to PLACE", the verb read from the token on.
  States ConvoyedMoves(State state, std::size_t at) {
    const auto [verb, next] = phrases_.VerbAt(at);
    if (verb != Verb::Move || state.Order.Unit.Type == 'F') return {};
    state.Order.What = Verb::Move;
    state.Order.ByConvoy = true;
    state.Next = next;
    return Moves(state);
  }

  bool IsAllowed(Verb verb) const {
    switch (stage_) {
      case model::Stage::Moves:
        return verb == Verb::Move || verb == Verb::Hold || verb == Verb::Support ||
               verb == Verb::Convoy;
      case model::Stage::Retreats:
        return verb == Verb::Retreat || verb == Verb::Disband;
      case model::Stage::Adjustments:
        return verb == Verb::Build || verb == Verb::Disband || verb == Verb::Waive;
      default:
        break;
    }
    return false;
  }

  States Destinations(const State& state) {
    States states;
    for (const auto& [place, next] : phrases_.Places(state.Next, "the destination is missing")) {
      State& read = states.emplace_back(state);
      read.Order.Destination = place;
      read.Next = next;
    }
    return states;
  }

  static const WrittenUnit& Mover(const WrittenOrder& order) {
    return order.Other.Place.Rows.empty() ? order.Unit : order.Other;
  }

  /// The first place of a move; where a fleet is named, the move goes on over its water.
  States FirstPlaces(const State& state) {
    States places = Destinations(state);
    const auto [type, next] = phrases_.TypeAt(state.Next);
    if (type != 'F') return places;
    State fleet = state;
    fleet.Next = next;
    for (State& place : Destinations(fleet)) {
      const bool goesOn = phrases_.VerbAt(place.Next).first == Verb::Move;
      if (goesOn && phrases_.IsWater(place.Order.Destination)) places.push_back(std::move(place));
    }
    return places;
  }

  /// A destination, or a road over waters to it.
  States Moves(const State& state) {
    States ends;
    States roads = FirstPlaces(state);
    std::vector<std::size_t> seen;
    while (!roads.empty()) {
      State road = std::move(roads.back());
      roads.pop_back();
      const auto [verb, next] = phrases_.VerbAt(road.Next);
      // Each place of the line is passed only once: different readings of one water would otherwise
      // multiply.
      const bool goesOn = verb == Verb::Move && Mover(road.Order).Type != 'F' &&
                          phrases_.IsWater(road.Order.Destination) &&
                          std::ranges::find(seen, next) == seen.end();
      if (goesOn) {
        seen.push_back(next);
        State further = road;
        further.Next = next;
        further.Order.ByConvoy = true;
        Append(roads, FirstPlaces(further));
      }
      const std::size_t via = phrases_.PastVia(road.Next);
      if (const std::size_t end = phrases_.PastConvoy(via); end != road.Next) {
        road.Order.ByConvoy = true;
        road.Next = end;
      }
      ends.push_back(std::move(road));
    }
    return ends;
  }

  States Supports(State state) {
    States all;
    state.Next = phrases_.PastNoun(state.Next);
    const auto [verb, next] = phrases_.VerbAt(state.Next);
    // "S to Bur", "S move Par to Bur" and "S hold Par" have the other unit's verb first; it stands
    // behind that unit in all other forms.
    State behind = state;
    behind.Next = next;
    if (verb == Verb::Move) {
      State aimed = behind;
      aimed.Order.OtherWhat = verb;
      Append(all, Destinations(aimed));
      for (const State& read : Units(behind, &WrittenOrder::Other)) {
        const bool moves = phrases_.VerbAt(read.Next).first == Verb::Move;
        // Without a type or a second verb, what follows "S to" is a destination, which was read
        // above.
        if (moves || read.Order.Other.Type != 0) AddSupports(all, read);
      }
    } else if (verb == Verb::Hold) {
      behind.Order.OtherWhat = verb;
      Append(all, Units(behind, &WrittenOrder::Other));
    }
    for (const State& read : Units(state, &WrittenOrder::Other))
      AddSupports(all, read);
    return all;
  }

  /// Adds what the supported unit can do.
  void AddSupports(States& all, State state) {
    all.push_back(state);
    Append(all, VerblessTails(state));
    const auto [verb, next] = phrases_.VerbAt(state.Next);
    if (verb != Verb::Move && verb != Verb::Hold) return;
    state.Next = next;
    state.Order.OtherWhat = verb;
    if (verb == Verb::Move) return Append(all, Moves(state));
    state.Next = phrases_.PastPlace(next, state.Order.Other.Place);
    all.push_back(std::move(state));
  }

  /// "Mar s par bur": the other unit's move without a dash.
  States VerblessTails(State state) {
    const WrittenPlace& place = state.Order.Other.Place;
    if (state.Next != place.At.End || !phrases_.IsPair(place)) return {};
    state.Order.OtherWhat = Verb::Move;
    state.Order.IsGuess = state.Order.IsBare = true;
    return Destinations(state);
  }

  States Convoys(State state) {
    States all = ConvoyedMoves(state, state.Next);
    state.Next = phrases_.PastNoun(state.Next);
    for (State& read : Units(state, &WrittenOrder::Other)) {
      all.push_back(read);
      Append(all, VerblessTails(read));
      const auto [verb, next] = phrases_.VerbAt(read.Next);
      if (verb != Verb::Move) continue;
      read.Next = next;
      read.Order.OtherWhat = verb;
      Append(all, Moves(read));
    }
    return all;
  }

  States VerbFirst(const State& front) {
    const auto [verb, next] = phrases_.VerbAt(front.Next);
    State state = front;
    state.Order.What = verb;
    state.Next = next;
    if (!IsAllowed(verb) || !phrases_.MayLead(front.Next)) return {};
    if (verb == Verb::Waive) {
      state.Next = phrases_.PastCount(next);
      return {state};
    }
    // "Support A Par" leaves open who supports.
    if (verb == Verb::Support || verb == Verb::Convoy) return {};
    States all;
    state.Next = phrases_.PastMarks(next);
    for (State& read : Units(state, &WrittenOrder::Unit)) {
      if (verb != Verb::Move && verb != Verb::Retreat) {
        all.push_back(std::move(read));
        continue;
      }
      // "Move A Par to Bur": the verb in front does not replace the one before the destination.
      const auto [to, behind] = phrases_.VerbAt(read.Next);
      if (to != Verb::Move) {
        phrases_.Expected("the destination is missing", read.Next);
        continue;
      }
      read.Next = behind;
      Append(all, verb == Verb::Move ? Moves(read) : Destinations(read));
    }
    return all;
  }

  Phrases& phrases_;
  model::Stage stage_;
  Verb verb_;
};

}  // namespace

Parse ParseWrittenOrder(Tokens tokens, const PlaceNames& names, const model::Map& map,
                        model::Stage stage, Verb verb, Rest rest) {
  Phrases phrases(tokens, names, map, stage);
  Parse parse;
  parse.Orders = Grammar(phrases, stage, verb).Read(rest);
  if (parse.Orders.empty()) parse.Problem = phrases.Problem();
  return parse;
}

}  // namespace orb::exchange
