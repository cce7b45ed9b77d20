#include "orders/exchange/surroundings.h"

namespace orb::exchange {

void SurroundingsOfLines::SetCorrects(std::size_t first) {
  for (std::size_t row = first; row < rows_.size(); ++row)
    rows_[row].Corrects = true;
}

void SurroundingsOfLines::SetDoubt(std::size_t first, const std::string& reason, Span at) {
  for (std::size_t row = first; row < rows_.size(); ++row) {
    if (!rows_[row].Doubt.empty()) continue;
    rows_[row].Doubt = reason;
    rows_[row].DoubtAt = at;
  }
}

void SurroundingsOfLines::SetAside(AsideScope scope, const std::string& reason, Span at, int power,
                                   const std::vector<ReadLine>& lines, std::size_t end) {
  const bool isAbove = scope != AsideScope::Below && SetAsideAbove(reason, at, lines, end);
  if (isAbove || scope == AsideScope::Above) return;
  reason_ = reason;
  at_ = at;
  power_ = power;
  below_ = rows_.size();
}

/// False when there are no orders above in the same part of the text.
bool SurroundingsOfLines::SetAsideAbove(const std::string& reason, Span at,
                                        const std::vector<ReadLine>& lines, std::size_t end) {
  const bool isOlder = rows_.back().IsOlder;
  bool any = false;
  std::size_t& row = notSetAside_[isOlder ? 1 : 0];
  for (; row < end; ++row) {
    if (!IsUnderstood(lines[row]) || rows_[row].IsOlder != isOlder) continue;
    rows_[row].Doubt = reason;
    rows_[row].DoubtAt = at;
    any = true;
  }
  return any;
}

void SurroundingsOfLines::TakeHeading(int power, bool corrects,
                                      const std::vector<ReadLine>& lines) {
  if (reason_.empty()) return;
  while (below_ < lines.size() && !IsUnderstood(lines[below_]))
    ++below_;
  const bool isOfAnother = below_ < lines.size() && power_ != 0 && power != 0 && power != power_;
  if (corrects || isOfAnother) reason_.clear();
}

}  // namespace orb::exchange
