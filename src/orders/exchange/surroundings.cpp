#include "orders/exchange/surroundings.h"

#include "orders/exchange/known_game.h"

#include <algorithm>

namespace orb::exchange {

void SurroundingsOfLines::SetCorrects(std::size_t first) {
  for (std::size_t row = first; row < rows_.size(); ++row)
    rows_[row].Corrects = true;
}

void SurroundingsOfLines::AddAbout(std::size_t row, const Concern& concern) {
  Concern& about = rows_[row].About;
  about.Provinces.insert(about.Provinces.end(), concern.Provinces.begin(), concern.Provinces.end());
}

void SurroundingsOfLines::SetReconsiders(std::size_t row, const std::string& reason, Span at) {
  rows_[row].SecondThoughts = std::make_shared<Misgiving>(Misgiving{reason, at});
}

void SurroundingsOfLines::SetAmends(std::size_t row, const std::string& reason, Span at) {
  SetReconsiders(row, reason, at);
  rows_[row].Amends = true;
}

void SurroundingsOfLines::SetDoubtFrom(std::size_t first, const std::string& reason, Span at) {
  Doubt(first, rows_.size(), std::make_shared<Misgiving>(Misgiving{reason, at}));
}

void SurroundingsOfLines::SetDoubt(std::size_t row, const std::string& reason, Span at,
                                   bool isSetAside) {
  Doubt(row, row + 1, std::make_shared<Misgiving>(Misgiving{reason, at}));
  rows_[row].IsSetAside = rows_[row].IsSetAside || isSetAside;
}

void SurroundingsOfLines::SetAside(AsideScope scope, const std::string& reason, Span at, int power,
                                   const Concern& about, const std::vector<ReadLine>& lines,
                                   std::size_t end) {
  const auto misgiving = std::make_shared<const Misgiving>(Misgiving{reason, at});
  const bool isAbove = scope != AsideScope::Below && SetAsideAbove(misgiving, about, lines, end);
  if (isAbove || scope == AsideScope::Above) return;
  setAside_ = misgiving;
  power_ = power;
  below_ = rows_.size();
}

/// False when there are no orders above in the same part of the text.
bool SurroundingsOfLines::SetAsideAbove(const std::shared_ptr<const Misgiving>& misgiving,
                                        const Concern& about, const std::vector<ReadLine>& lines,
                                        std::size_t end) {
  const bool isOlder = rows_.back().IsOlder;
  std::size_t& begin = notSetAside_[isOlder ? 1 : 0];
  const auto isOrder = [&](std::size_t row) {
    return IsUnderstood(lines[row]) && rows_[row].IsOlder == isOlder;
  };
  bool any = false;
  bool isOfSome = false;
  for (std::size_t row = begin; row < end; ++row) {
    any = any || isOrder(row);
    isOfSome = isOfSome || (isOrder(row) && Concerns(about, lines[row].Order));
  }
  if (about.IsOwn && !isOfSome) return any;
  for (std::size_t row = begin; row < end; ++row) {
    if (!isOrder(row) || (isOfSome && !Concerns(about, lines[row].Order))) continue;
    rows_[row].Doubt = misgiving;
    rows_[row].IsSetAside = true;
  }
  if (!isOfSome) begin = std::max(begin, end);
  return any;
}

void SurroundingsOfLines::DoubtAbove(const std::string& reason, Span at, const Concern& about,
                                     const std::vector<ReadLine>& lines, std::size_t end) {
  const auto misgiving = std::make_shared<const Misgiving>(Misgiving{reason, at});
  // More orders than all powers have: a text that names one unit again and again takes no longer.
  constexpr std::size_t most = 500;
  const std::size_t begin =
      std::max(doubted_[rows_.back().IsOlder ? 1 : 0], end - std::min(end, most));
  const auto mayBeMeant = [&](std::size_t row, bool isOfSome) {
    return IsUnderstood(lines[row]) && rows_[row].IsOlder == rows_.back().IsOlder &&
           (!isOfSome || Concerns(about, lines[row].Order));
  };
  bool isOfSome = false;
  for (std::size_t row = begin; row < end; ++row)
    isOfSome = isOfSome || mayBeMeant(row, true);
  if (about.IsOwn && !isOfSome) return;
  for (std::size_t row = begin; row < end; ++row) {
    if (mayBeMeant(row, isOfSome) && rows_[row].Doubt == nullptr) rows_[row].Doubt = misgiving;
  }
  // What is doubted once need not be looked at again.
  if (!isOfSome) doubted_[rows_.back().IsOlder ? 1 : 0] = end;
}

void SurroundingsOfLines::TakeHeading(int power, bool corrects, bool isOfOrders,
                                      const std::vector<ReadLine>& lines) {
  if (setAside_ == nullptr) return;
  while (below_ < lines.size() && !IsUnderstood(lines[below_]) && !IsUnclear(lines[below_]))
    ++below_;
  const bool isOfAnother = power_ != 0 && power != 0 && power != power_;
  if (corrects || (below_ < lines.size() && (isOfOrders || isOfAnother))) setAside_.reset();
}

void SurroundingsOfLines::EndLine(std::size_t first, bool holdsOrders, bool isEmpty,
                                  const std::vector<ReadLine>& lines) {
  if (!holdsOrders) {
    if (!isEmpty || isInBlock_) lead_ = {};
    isInBlock_ = false;
    return;
  }
  if (!isInBlock_) block_ = first;
  isInBlock_ = true;
  blockEnd_ = rows_.size();
  if (lead_.Doubt == nullptr) return;
  for (std::size_t row = first; row < rows_.size(); ++row) {
    if (lead_.Power != 0 && lines[row].Power == PowerText(lead_.Power)) continue;
    Doubt(row, row + 1, lead_.Doubt);
    rows_[row].IsSetAside = rows_[row].IsSetAside || lead_.SetsAside;
  }
}

void SurroundingsOfLines::DoubtBlock(const std::string& reason, Span at) {
  Doubt(block_, blockEnd_, std::make_shared<Misgiving>(Misgiving{reason, at}));
}

/// Rows of the same part of the text as the last one.
void SurroundingsOfLines::Doubt(std::size_t first, std::size_t end,
                                const std::shared_ptr<const Misgiving>& misgiving) {
  for (std::size_t row = first; row < end; ++row) {
    const bool isDoubted = rows_[row].Doubt != nullptr;
    if (isDoubted || rows_[row].IsOlder != rows_.back().IsOlder) continue;
    rows_[row].Doubt = misgiving;
  }
}

}  // namespace orb::exchange
