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

/// Reads one order; every step turns the readings so far into all that can follow.
class Grammar {
 public:
  Grammar(Phrases& phrases, OrderStage stage, Verb verb)
      : phrases_(phrases), stage_(stage), verb_(verb) {}

  std::vector<WrittenOrder> Read() {
    States all;
    for (const State& state : Front()) {
      Append(all, UnitFirst(state));
      Append(all, VerbFirst(state));
    }
    std::vector<WrittenOrder> orders;
    for (State& state : all) {
      if (phrases_.Ends(state.Next)) orders.push_back(std::move(state.Order));
    }
    return orders;
  }

 private:
  static void Append(States& all, States more) {
    std::move(more.begin(), more.end(), std::back_inserter(all));
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
      if (verb == Verb::None) {
        if (!IsAllowed(verb_) || !phrases_.Ends(via)) {
          phrases_.Expected("it is not said what the unit does", via);
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

  /// What may stand behind a unit and its verb, which was written at the token.
  States Action(State state, std::size_t verbAt) {
    Verb& verb = state.Order.What;
    if (stage_ == OrderStage::Retreats && verb == Verb::Move) verb = Verb::Retreat;
    if (!IsAllowed(verb)) {
      phrases_.NotInStage(verbAt);
      return {};
    }
    switch (verb) {
      case Verb::Move:
        return Moves(state);
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

  bool IsAllowed(Verb verb) const {
    switch (stage_) {
      case OrderStage::Moves:
        return verb == Verb::Move || verb == Verb::Hold || verb == Verb::Support ||
               verb == Verb::Convoy;
      case OrderStage::Retreats:
        return verb == Verb::Retreat || verb == Verb::Disband;
      case OrderStage::Adjustments:
        return verb == Verb::Build || verb == Verb::Disband || verb == Verb::Waive;
      case OrderStage::None:
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

  /// A destination, or a road over waters to it.
  States Moves(const State& state) {
    States ends;
    States roads = Destinations(state);
    std::vector<std::size_t> seen;
    while (!roads.empty()) {
      State road = std::move(roads.back());
      roads.pop_back();
      const auto [verb, next] = phrases_.VerbAt(road.Next);
      const bool goesOn = verb == Verb::Move && Mover(road.Order).Type != 'F' &&
                          phrases_.IsWater(road.Order.Destination) &&
                          std::ranges::find(seen, next) == seen.end();
      if (goesOn) {
        seen.push_back(next);
        State further = road;
        further.Next = next;
        further.Order.ByConvoy = true;
        Append(roads, Destinations(further));
      }
      if (const std::size_t via = phrases_.PastVia(road.Next); via != road.Next) {
        road.Order.ByConvoy = true;
        road.Next = via;
      }
      ends.push_back(std::move(road));
    }
    return ends;
  }

  States Supports(State state) {
    States all;
    state.Next = phrases_.PastNoun(state.Next);
    if (const auto [verb, next] = phrases_.VerbAt(state.Next); verb == Verb::Move) {
      State aimed = state;
      aimed.Next = next;
      aimed.Order.OtherWhat = Verb::Move;
      Append(all, Destinations(aimed));
    }
    for (State& read : Units(state, &WrittenOrder::Other)) {
      all.push_back(read);
      const auto [verb, next] = phrases_.VerbAt(read.Next);
      if (verb != Verb::Move && verb != Verb::Hold) continue;
      read.Next = next;
      read.Order.OtherWhat = verb;
      if (verb == Verb::Hold) {
        all.push_back(std::move(read));
      } else {
        Append(all, Moves(read));
      }
    }
    return all;
  }

  States Convoys(State state) {
    States all;
    state.Next = phrases_.PastNoun(state.Next);
    for (State& read : Units(state, &WrittenOrder::Other)) {
      all.push_back(read);
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
    if (verb == Verb::Support || verb == Verb::Convoy) return {};
    States all;
    state.Next = phrases_.PastMarks(next);
    for (State& read : Units(state, &WrittenOrder::Unit)) {
      if (verb != Verb::Move && verb != Verb::Retreat) {
        all.push_back(std::move(read));
        continue;
      }
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
  OrderStage stage_;
  Verb verb_;
};

}  // namespace

Parse ParseWrittenOrder(Tokens tokens, const PlaceNames& names, const model::Map& map,
                        OrderStage stage, Verb verb) {
  Phrases phrases(tokens, names, map, stage);
  Parse parse;
  parse.Orders = Grammar(phrases, stage, verb).Read();
  if (parse.Orders.empty()) parse.Problem = phrases.Problem();
  return parse;
}

}  // namespace orb::exchange
