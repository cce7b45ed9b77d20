#include "adjudication/usual_reading.h"

#include "model/lookups.h"
#include "orders/parser.h"

#include <algorithm>
#include <optional>

namespace orb::tests {
namespace {

using model::UnitType;
using orders::OrderKind;
using orders::OrderLine;

/// A line of the list as it is meant.
struct Meaning {
  OrderKind Kind = OrderKind::Hold;
  OrderKind OtherKind = OrderKind::None;
  int OtherPower = 0;
  UnitType OtherType = UnitType::None;
  int OtherFrom = 0;  ///< province of the other unit
  int To = 0;         ///< of a fleet, and of one that is supported: location; else province
  bool Fits = true;   ///< the destination is one location

  bool operator==(const Meaning&) const = default;
};

class Reader {
 public:
  explicit Reader(const model::GameState& game) : game_(game), map_(*game.Map) {}

  std::vector<Duty> Read() {
    for (const model::Unit& unit : game_.Units) {
      Duty& duty = duties_.emplace_back();
      duty.Power = model::FindCountry(unit.Power);
      duty.Standing = model::FindProvince(map_, unit.Location);
      duty.From = Province(duty.Standing);
      types_.push_back(model::UnitTypeOf(unit.UnitType));
    }
    ReadLines();
    for (int u = 0; u < Count(); ++u)
      FindMove(u);
    for (int u = 0; u < Count(); ++u)
      FindSupport(u);
    for (int u = 0; u < Count(); ++u)
      FindConvoy(u);
    return duties_;
  }

 private:
  int Count() const { return static_cast<int>(duties_.size()); }
  Duty& Of(int unit) { return duties_[static_cast<std::size_t>(unit)]; }
  UnitType TypeOf(int unit) const { return types_[static_cast<std::size_t>(unit)]; }
  const std::optional<Meaning>& Order(int unit) const {
    return orders_[static_cast<std::size_t>(unit)];
  }

  int Province(int row) const { return model::ProvinceOf(map_, row); }

  std::vector<int> LocationsOf(int province) const {
    std::vector<int> rows;
    for (int row = 1; row <= map_.Provinces.Count(); ++row) {
      if (Province(row) == province) rows.push_back(row);
    }
    return rows;
  }
  bool CanStand(UnitType type, int province) const {
    const auto rows = LocationsOf(province);
    return std::any_of(rows.begin(), rows.end(),
                       [&](int row) { return model::CanStandIn(map_, type, row); });
  }
  bool IsWater(int province) const { return !CanStand(UnitType::Army, province); }
  bool IsCoastal(int province) const {
    return CanStand(UnitType::Army, province) && CanStand(UnitType::Fleet, province);
  }
  /// Whether a fleet there touches the province, on whichever coast.
  bool Touches(UnitType type, int from, int province) const {
    const auto rows = LocationsOf(province);
    return std::any_of(rows.begin(), rows.end(),
                       [&](int row) { return model::IsAdjacent(map_, type, from, row); });
  }

  int FindUnit(int power, UnitType type, int province) {
    for (int u = 0; u < Count(); ++u) {
      if (Of(u).Power == power && TypeOf(u) == type && Of(u).From == province) return u;
    }
    return -1;
  }

  /// The location that a fleet's destination means.
  void ReadLanding(int from, int named, Meaning& meaning) const {
    meaning.To = named;
    const auto rows = LocationsOf(Province(named));
    if (rows.size() == 1 || named != Province(named)) return;
    std::vector<int> reached;
    for (const int row : rows) {
      if (model::IsAdjacent(map_, UnitType::Fleet, from, row)) reached.push_back(row);
    }
    meaning.Fits = reached.size() == 1;
    if (meaning.Fits) meaning.To = reached.front();
  }

  Meaning MeaningOf(int unit, const OrderLine& line) {
    Meaning meaning;
    meaning.Kind = line.Kind;
    if (line.Kind == OrderKind::Move) {
      meaning.To = Province(line.Target);
      if (TypeOf(unit) == UnitType::Fleet) ReadLanding(Of(unit).Standing, line.Target, meaning);
    } else if (line.Kind != OrderKind::Hold) {
      meaning.OtherKind = line.Kind2;
      meaning.OtherPower = line.Power2;
      meaning.OtherType = line.UnitType2;
      meaning.OtherFrom = Province(line.Target);
      if (line.Kind2 == OrderKind::Move) {
        meaning.To = line.UnitType2 == UnitType::Fleet ? line.Target2 : Province(line.Target2);
      }
    }
    return meaning;
  }

  /// Lines that differ in meaning leave the unit without an order: it holds.
  void ReadLines() {
    orders_.resize(duties_.size());
    std::vector<bool> contradicted(duties_.size());
    for (const std::string& text : game_.OrdersList) {
      const OrderLine line = orders::ParseLine(map_, model::Stage::Moves, text);
      if (line.Fault != orders::SyntaxFault::None) continue;
      const int unit = FindUnit(line.Power, line.UnitType, Province(line.Location));
      if (unit < 0) continue;
      const Meaning meaning = MeaningOf(unit, line);
      auto& order = orders_[static_cast<std::size_t>(unit)];
      if (order && !(*order == meaning)) contradicted[static_cast<std::size_t>(unit)] = true;
      order = meaning;
    }
    for (std::size_t u = 0; u < orders_.size(); ++u) {
      if (contradicted[u]) orders_[u].reset();
    }
  }

  /// All chains from one province to another of fleets that are among these, each fleet once.
  void FindChains(Bits among, int to, int last, Bits chain, std::vector<Bits>& chains) {
    if (Touches(UnitType::Fleet, Of(last).Standing, to)) chains.push_back(chain);
    for (int f = 0; f < Count(); ++f) {
      if (Has(among, f) && !Has(chain, f) &&
          model::IsAdjacent(map_, UnitType::Fleet, Of(last).Standing, Of(f).Standing)) {
        FindChains(among, to, f, chain | Bit(f), chains);
      }
    }
  }
  std::vector<Bits> Chains(Bits among, int from, int to) {
    std::vector<Bits> chains;
    for (int f = 0; f < Count(); ++f) {
      if (Has(among, f) && Touches(UnitType::Fleet, Of(f).Standing, from)) {
        FindChains(among, to, f, Bit(f), chains);
      }
    }
    return chains;
  }

  void FindMove(int u) {
    if (!Order(u) || Order(u)->Kind != OrderKind::Move) return;
    const Meaning& order = *Order(u);
    Duty& duty = Of(u);
    const int to = Province(order.To);
    const bool isArmy = TypeOf(u) == UnitType::Army;
    const bool isAdjacent =
        model::IsAdjacent(map_, TypeOf(u), isArmy ? duty.From : duty.Standing, order.To);
    bool isPossible = order.Fits && isAdjacent;
    if (isArmy && !isAdjacent && IsCoastal(duty.From) && IsCoastal(to)) {
      Bits fleets = 0;
      for (int f = 0; f < Count(); ++f) {
        if (TypeOf(f) == UnitType::Fleet && IsWater(Of(f).From)) fleets |= Bit(f);
      }
      isPossible = !Chains(fleets, duty.From, to).empty();
    }
    if (!isPossible || to == duty.From) return;
    duty.Kind = Duty::What::Move;
    duty.To = to;
    duty.Landing = order.To;
    duty.ByConvoy = !isAdjacent;
    if (isArmy) FindCarriers(u, isAdjacent);
  }

  void FindCarriers(int u, bool isAdjacent) {
    Duty& duty = Of(u);
    Bits carriers = 0;
    Bits own = 0;
    for (int f = 0; f < Count(); ++f) {
      if (!Order(f) || Order(f)->Kind != OrderKind::Convoy || !IsWater(Of(f).From)) continue;
      const Meaning& convoy = *Order(f);
      if (FindUnit(convoy.OtherPower, convoy.OtherType, convoy.OtherFrom) != u) continue;
      if (convoy.To != duty.To) continue;
      carriers |= Bit(f);
      if (Of(f).Power == duty.Power) own |= Bit(f);
    }
    const std::vector<Bits> chains = Chains(carriers, duty.From, duty.To);
    duty.ByConvoy = !isAdjacent || std::any_of(chains.begin(), chains.end(),
                                               [&](Bits chain) { return (chain & own) != 0; });
    if (duty.ByConvoy) duty.Chains = chains;
  }

  void FindSupport(int u) {
    if (!Order(u) || Order(u)->Kind != OrderKind::Support) return;
    const Meaning& order = *Order(u);
    Duty& duty = Of(u);
    const bool ofMove = order.OtherKind == OrderKind::Move;
    const int into = ofMove ? Province(order.To) : order.OtherFrom;
    const int standing = TypeOf(u) == UnitType::Army ? duty.From : duty.Standing;
    const int helped = FindUnit(order.OtherPower, order.OtherType, order.OtherFrom);
    if (helped < 0 || helped == u || !Touches(TypeOf(u), standing, into)) return;
    const Duty& other = Of(helped);
    const bool namesCoast = ofMove && order.To != into;
    if (ofMove != (other.Kind == Duty::What::Move) || (ofMove && other.To != into) ||
        (namesCoast && order.To != other.Landing)) {
      return;
    }
    duty.Kind = Duty::What::Support;
    duty.Helped = helped;
    duty.Into = into;
  }

  /// Which fleets carry whom stands in the chains; here only that the fleet holds.
  void FindConvoy(int u) {
    if (Order(u) && Order(u)->Kind == OrderKind::Convoy) Of(u).Kind = Duty::What::Convoy;
  }

  const model::GameState& game_;
  const model::Map& map_;
  std::vector<Duty> duties_;
  std::vector<UnitType> types_;
  std::vector<std::optional<Meaning>> orders_;
};

}  // namespace

std::vector<Duty> ReadDuties(const model::GameState& game) {
  return Reader(game).Read();
}

}  // namespace orb::tests
