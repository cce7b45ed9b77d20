#include "orders/exchange/contradictions.h"

#include "orders/exchange/known_game.h"
#include "orders/order_list.h"
#include "text/strings.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace orb::exchange {
namespace {

void MakeDoubtful(ReadLine& line, std::string reason, Span at) {
  if (line.Kind != LineKind::Order) return;
  line.Kind = LineKind::Doubtful;
  line.Reason = std::move(reason);
  line.ReasonPlace = at;
}

void MakeReplaced(ReadLine& line, std::string reason) {
  line.Kind = LineKind::Replaced;
  line.Reason = std::move(reason);
  line.ReasonPlace = line.Place;
}

/// Where an answer orders something for a unit, what it quotes for that unit is replaced; in
/// adjustments, where a choice is one of all units, for that power. Quoted orders that stand alone
/// may be meant to stay in force, or not.
void WeighOlder(std::vector<ReadLine>& lines, const std::vector<Surroundings>& around,
                model::Stage stage) {
  const auto subjectOf = [&](const std::string& order) {
    return stage == model::Stage::Adjustments ? text::UpperCase(order.substr(0, order.find(' ')))
                                              : SubjectOf(order, stage);
  };
  std::set<std::string> answered;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (around[i].IsOlder) continue;
    if (!lines[i].Order.empty()) answered.insert(subjectOf(lines[i].Order));
    for (const std::string& candidate : lines[i].Candidates)
      answered.insert(subjectOf(candidate));
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    ReadLine& line = lines[i];
    if (!around[i].IsOlder || !IsUnderstood(line)) continue;
    if (answered.contains(subjectOf(line.Order))) {
      MakeReplaced(line, "it is quoted, and the text itself orders the unit");
    } else {
      MakeDoubtful(line, "it stands in an older part of the text", line.Place);
    }
  }
}

/// Whether a row is a line without an order of its own that puts right what stands above it.
bool IsCorrection(const ReadLine& line, const Surroundings& around) {
  return around.Corrects && !IsUnderstood(line) && !IsUnclear(line);
}

/// A line that is not understood may change the orders that it is about, but none below a
/// correction of all.
void WeighUnclear(std::vector<ReadLine>& lines, const std::vector<Surroundings>& around) {
  const auto isOrder = [&](std::size_t row) {
    return !around[row].IsOlder && IsUnderstood(lines[row]);
  };
  std::multimap<std::string, std::size_t> ofUnits;
  std::multimap<std::string, std::size_t> ofTargets;
  std::vector<std::size_t> corrections(lines.size());  // up to each row
  for (std::size_t row = 0; row < lines.size(); ++row) {
    corrections[row] =
        (row == 0 ? 0 : corrections[row - 1]) + (IsCorrection(lines[row], around[row]) ? 1U : 0U);
    if (!isOrder(row)) continue;
    ofUnits.emplace(lines[row].Power + ProvinceOf(lines[row].Order), row);
    ofTargets.emplace(lines[row].Power + TargetOf(lines[row].Order), row);
  }
  std::size_t allDoubted = 0;  // up to this row
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const ReadLine& line = lines[i];
    const Concern& about = around[i].About;
    const bool says = line.Kind == LineKind::NotUnderstood ||
                      (line.Kind == LineKind::Doubtful && !about.Provinces.empty());
    if (around[i].IsOlder || !says) continue;
    const std::string reason = "line " + std::to_string(line.Number) + " may be about it";
    bool isOfSome = false;
    const auto doubt = [&](std::multimap<std::string, std::size_t>& orders,
                           const std::string& province) {
      for (int power = 1; power <= model::CountryCount; ++power) {
        const std::string owner = PowerText(power);
        if (!line.Power.empty() && line.Power != owner) continue;
        const auto [first, last] = orders.equal_range(owner + province);
        isOfSome = isOfSome || first != last;
        auto at = first;
        const auto mayBe = [&](std::size_t row) {
          return corrections[row] <= corrections[i] && (row < i || !about.OnlyAbove);
        };
        for (; at != last && mayBe(at->second); ++at)
          MakeDoubtful(lines[at->second], reason, line.Place);
        // What is doubted once stays so, and need not be looked at again.
        orders.erase(first, at);
      }
    };
    for (const std::string& province : about.Provinces) {
      doubt(ofUnits, province);
      if (about.OfTargets) doubt(ofTargets, province);
    }
    if (isOfSome || !about.MayBeAll) continue;
    for (; allDoubted < lines.size() && corrections[allDoubted] <= corrections[i]; ++allDoubted) {
      if (isOrder(allDoubted)) MakeDoubtful(lines[allDoubted], reason, line.Place);
    }
  }
}

/// Second thoughts take back the orders before them in their line, or of the line above; the units
/// that are ordered again tell which ones otherwise. Builds are a choice of all.
void WeighSecondThoughts(std::vector<ReadLine>& lines, const std::vector<Surroundings>& around,
                         model::Stage stage) {
  /// The orders so far of a power, of the answer or of what is older.
  struct Before {
    std::vector<std::size_t> Rows;
    std::size_t Doubted = 0;  ///< so many of them, from the first on
    std::map<std::string, std::set<std::string>> OfSubjects;
  };
  std::map<std::pair<std::string, bool>, Before> ofPowers;
  for (std::size_t row = 0; row < lines.size(); ++row) {
    if (!IsUnderstood(lines[row])) continue;
    Before& before = ofPowers[{lines[row].Power, around[row].IsOlder}];
    std::set<std::string>& others = before.OfSubjects[SubjectOf(lines[row].Order, stage)];
    const auto& misgiving = around[row].SecondThoughts;
    const bool isAgain = others.size() > (others.contains(lines[row].Order) ? 1U : 0U);
    if (misgiving != nullptr && !isAgain && !before.Rows.empty()) {
      const int last = lines[before.Rows.back()].Number;
      for (std::size_t i = before.Rows.size(); i > before.Doubted; --i) {
        ReadLine& other = lines[before.Rows[i - 1]];
        if (stage != model::Stage::Adjustments && other.Number != last) break;
        MakeDoubtful(other, misgiving->Reason, misgiving->At);
      }
      before.Doubted = before.Rows.size();
    }
    const bool isOpen = around[row].Amends && misgiving != nullptr && !isAgain;
    if (isOpen && before.Doubted > 0 && stage != model::Stage::Adjustments) {
      MakeDoubtful(lines[row], misgiving->Reason, misgiving->At);
    }
    before.Rows.push_back(row);
    others.insert(lines[row].Order);
  }
}

/// "Cancel Tri - Alb" takes back the same order wherever it stands.
void WeighRevoked(std::vector<ReadLine>& lines, const std::vector<Surroundings>& around) {
  std::map<std::string, std::size_t> revoked;
  for (std::size_t row = 0; row < lines.size(); ++row) {
    if (around[row].IsRevoked && IsUnderstood(lines[row])) revoked.emplace(lines[row].Order, row);
  }
  if (revoked.empty()) return;
  for (ReadLine& line : lines) {
    const auto by = revoked.find(line.Order);
    if (by == revoked.end()) continue;
    MakeDoubtful(line, "line " + std::to_string(lines[by->second].Number) + " may take it back",
                 line.Place);
  }
}

/// Several orders for one unit: the rows of its orders, in the text's order.
using OrdersOfSubject = std::map<std::string, std::vector<std::size_t>>;

class Contradictions {
 public:
  Contradictions(std::vector<ReadLine>& lines, const std::vector<Surroundings>& around,
                 model::Stage stage)
      : lines_(lines), around_(around), corrections_(lines.size() + 1) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
      // What is said next to an order is said of that order.
      corrections_[i + 1] = corrections_[i] + (IsCorrection(lines[i], around[i]) ? 1U : 0U);
      if (around[i].IsOlder) continue;
      if (IsUnderstood(lines[i])) orders_[SubjectOf(lines[i].Order, stage)].push_back(i);
      // What an ambiguous line means may be another order of the unit.
      for (const std::string& candidate : lines[i].Candidates) {
        auto& rows = orders_[SubjectOf(candidate, stage)];
        if (rows.empty() || rows.back() != i) rows.push_back(i);
      }
    }
    SetAsideTakenBack();
  }

  void Weigh() {
    for (const auto& entry : orders_) {
      std::vector<std::size_t> rows = entry.second;
      SetAsideReplaced(rows);
      WeighRest(rows);
    }
  }

 private:
  /// "Scrap Mun - Bur" is said of the same order above it.
  void SetAsideTakenBack() {
    isTakenBack_.resize(lines_.size());
    std::set<std::string_view> takenBack;
    for (std::size_t row = lines_.size(); row-- > 0;) {
      if (!IsUnderstood(lines_[row])) continue;
      isTakenBack_[row] = takenBack.contains(lines_[row].Order);
      if (around_[row].IsRevoked && around_[row].IsSetAside) takenBack.insert(lines_[row].Order);
    }
  }

  /// Takes out the orders that a later one surely replaces.
  void SetAsideReplaced(std::vector<std::size_t>& rows) {
    std::vector<std::size_t> left;
    for (const std::size_t row : rows) {
      while (!left.empty() && IsReplacedBy(left.back(), row)) {
        MakeReplaced(lines_[left.back()], "the text itself orders otherwise below");
        left.pop_back();
      }
      left.push_back(row);
    }
    rows = std::move(left);
  }

  bool IsReplacedBy(std::size_t first, std::size_t second) const {
    const ReadLine& old = lines_[first];
    const ReadLine& now = lines_[second];
    if (!IsUnderstood(old) || now.Kind != LineKind::Order || old.Order == now.Order) return false;
    if (IsSetAside(first)) return true;
    if (around_[second].Amends) return true;
    const std::string& instead = around_[second].Instead;
    if (!instead.empty() && TargetOf(old.Order) == instead) return true;
    // Of two in one line, either may be the one that is put right: "A Par - Bur should be - Pic".
    if (old.Number == now.Number) return false;
    return around_[second].Corrects || corrections_[second] > corrections_[first + 1];
  }

  /// Each order is held against one that differs, of those that nothing sets aside.
  void WeighRest(const std::vector<std::size_t>& rows) {
    const auto first = std::ranges::find_if_not(rows, [&](auto row) { return IsSetAside(row); });
    if (first == rows.end()) return;
    const auto differs = [&](std::size_t row) {
      return !IsSetAside(row) && lines_[row].Order != lines_[*first].Order;
    };
    const auto second = std::find_if(first, rows.end(), differs);
    for (const std::size_t row : rows) {
      const auto other = lines_[row].Order == lines_[*first].Order ? second : first;
      if (other == rows.end()) continue;
      const std::string& order = lines_[*other].Order;
      MakeDoubtful(
          lines_[row],
          order.empty() ? "another line may be for the same unit" : "the text also orders " + order,
          lines_[row].Place);
    }
  }

  /// What stands under "Example:" and the like says nothing against an order elsewhere.
  bool IsSetAside(std::size_t row) const { return around_[row].IsSetAside || isTakenBack_[row]; }

  std::vector<ReadLine>& lines_;
  const std::vector<Surroundings>& around_;
  /// How many lines without an order correct, of those before each.
  std::vector<std::size_t> corrections_;
  std::vector<bool> isTakenBack_;  ///< by row: a line below takes the order back
  OrdersOfSubject orders_;
};

}  // namespace

std::string SubjectOf(std::string_view order, model::Stage stage) {
  std::string unit = text::UpperCase(orders::UnitPart(order));
  if (stage != model::Stage::Adjustments) return unit;
  const std::size_t power = std::min(unit.find(' '), unit.size());
  if (!std::string_view(unit).substr(power).starts_with(" BUILD")) return unit;
  constexpr std::size_t nameLength = 3;
  return unit.substr(0, power) + unit.substr(std::min(unit.find('('), unit.size()), nameLength + 1);
}

void WeighOrders(std::vector<ReadLine>& lines, const std::vector<Surroundings>& around,
                 model::Stage stage, std::string_view power) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Misgiving* doubt = around[i].Doubt.get();
    if (doubt != nullptr) MakeDoubtful(lines[i], doubt->Reason, doubt->At);
  }
  WeighOlder(lines, around, stage);
  WeighSecondThoughts(lines, around, stage);
  Contradictions(lines, around, stage).Weigh();
  WeighRevoked(lines, around);
  WeighUnclear(lines, around);
  for (ReadLine& line : lines) {
    if (power.empty() || line.Power == power) continue;
    MakeDoubtful(line, "it is an order of " + line.Power, line.Place);
  }
}

}  // namespace orb::exchange
