#include "orders/exchange/quotations.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace orb::exchange {

void Quotations::Take(std::string_view line, bool isHead) {
  if (line.empty()) return;
  isMarked_ = line.starts_with('>');
  isInside_ = isInside_ || (follows_ && !isMarked_);
  follows_ = isHead && !isMarked_;
}

void SetAsideReplaced(std::vector<ReadLine>& lines, const std::vector<bool>& quoted,
                      bool isAdjustments) {
  // The part of an order that tells whose it is: up to its unit, in adjustments only up to its
  // power.
  const auto unitOf = [&](const std::string& order) {
    return order.substr(0, isAdjustments ? order.find(' ') : order.find(')'));
  };
  std::map<std::string, std::set<std::string>> said;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (quoted[i]) continue;
    if (!lines[i].Order.empty()) said[unitOf(lines[i].Order)].insert(lines[i].Order);
    for (const std::string& candidate : lines[i].Candidates)
      said[unitOf(candidate)].insert(candidate);
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    ReadLine& line = lines[i];
    if (!quoted[i] || line.Kind != LineKind::Order) continue;
    const auto orders = said.find(unitOf(line.Order));
    // Quoted orders that the answer repeats, or says nothing about, stay in force.
    if (orders == said.end() || orders->second.contains(line.Order)) continue;
    line.Kind = LineKind::NotUnderstood;
    line.Order.clear();
    line.IsReplaced = true;
    line.Reason = "it is quoted, and the text itself orders otherwise";
    line.ReasonPlace = line.Place;
  }
}

}  // namespace orb::exchange
