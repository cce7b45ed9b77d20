#include "orders/exchange/cells.h"

#include <algorithm>
#include <vector>

namespace orb::exchange {

std::optional<PartRead> ReadCells(const SourceLine& line, TokenRange body, const PartsRead& parts,
                                  const KnownGame& known, const Context& context) {
  const bool isQuoted = line.Plain.Text.find("\",\"") != std::string::npos;
  const auto isSeparator = [&](const Token& token) {
    return IsA(token, TokenKind::Semicolon) || (isQuoted && IsA(token, TokenKind::Comma));
  };
  const Tokens all = Tokens(line.All).subspan(body.Begin, body.End - body.Begin);
  const bool areOrders =
      std::ranges::any_of(parts, [](const auto& part) { return IsUnderstood(part.second); });
  if (areOrders || std::ranges::count_if(all, isSeparator) == 0) return std::nullopt;
  std::vector<Token> cells;
  std::vector<std::size_t> places;  // of each in `all`
  for (std::size_t at = 0; at < all.size(); ++at) {
    if (isSeparator(all[at])) continue;
    cells.push_back(all[at]);
    places.push_back(at);
  }
  constexpr std::size_t longest = 40;
  if (cells.size() > longest) return std::nullopt;
  Context tried = context;
  PartRead read = ReadPart(cells, known, tried, Rest::Anything);
  if (read.Kind != LineKind::Order) return std::nullopt;
  read.End = places[std::min(read.End, places.size()) - 1] + 1;
  return read;
}

void DropNamesOfUnits(Tokens line, PartsRead& parts, const PlaceNames& names) {
  for (std::size_t i = 0; i + 1 < parts.size(); ++i) {
    auto& [range, part] = parts[i];
    const auto& [behind, order] = parts[i + 1];
    if (part.Kind != LineKind::NotUnderstood || order.Kind != LineKind::Order) continue;
    const std::size_t at = range.Begin + (UnitTypeOf(line[range.Begin]) != 0 ? 1 : 0);
    const std::size_t again = behind.Begin + (at - range.Begin);
    if (at >= range.End || again >= behind.End) continue;
    const auto unit = names.At(line, at);
    const auto same = names.At(line, again);
    const bool isUnit = !unit.empty() && unit[0].Next == range.End;
    if (isUnit && !same.empty() && same[0].Rows == unit[0].Rows) part.Kind = LineKind::PassedOver;
  }
}

}  // namespace orb::exchange
