#include "model/errors.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "orders/exchange/order_files.h"
#include "orders/exchange/read_orders.h"
#include "text/strings.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

// The first byte tells the stage, the power and the board; the bytes up to the first NUL are a file
// of repairs, the others the text. Without a NUL there are no repairs. Its highest bit makes a file
// in UTF-16 of the other bytes.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace orb {
namespace {

using exchange::LineKind;
using exchange::ReadLine;

void Require(bool holds, std::string_view what, const ReadLine& line) {
  if (holds) return;
  std::cerr << what << "\nwritten: " << line.Written << "\norder: " << line.Order
            << "\nreason: " << line.Reason << '\n';
  std::abort();
}

/// Two units in one place, fleets on and off their coasts, and what no good file holds.
void Crowd(model::GameState& game) {
  const std::array<model::Unit, 9> units{{
      {"FRA", "A", "Bur", "dislodged", "Mun", ""},
      {"GER", "A", "Bur", "", "", ""},
      {"FRA", "F", "Spa.n", "", "", ""},
      {"ITA", "F", "Spa.s", "dislodged", "WES", ""},
      {"TUR", "F", "Bul", "dislodged", "AEG", ""},
      {"AUS", "A", "NTH", "", "", ""},
      {"XXX", "F", "MAO", "", "", ""},
      {"ENG", "", "Wal", "", "", ""},
      {"RUS", "Fleet", "Nowhere", "dislodged", "", ""},
  }};
  for (const model::Unit& unit : units)
    game.Units.Append(unit);
}

model::GameState StartingGame() {
  model::GameState game = model::EmptyGame(model::LoadMap(ORB_DATA_DIRECTORY));
  model::NewGame(game, ORB_DATA_DIRECTORY);
  return game;
}

model::GameState GameFor(std::uint8_t choice) {
  static const model::GameState start = StartingGame();
  model::GameState game = start;
  if ((choice & 0x20U) != 0) Crowd(game);
  game.Stage = (choice & 0x40U) != 0 ? model::Stage::Moves : static_cast<model::Stage>(choice & 3U);
  return game;
}

bool IsInside(exchange::Span span, std::string_view text) {
  return span.Offset <= text.size() && span.Length <= text.size() - span.Offset;
}

void CheckLine(std::string_view text, const ReadLine& line) {
  Require(IsInside(line.Place, text), "the place is outside", line);
  Require(text.substr(line.Place.Offset, line.Place.Length) == line.Written, "not there", line);
  Require(IsInside(line.ReasonPlace, text), "the reason is outside", line);
  const bool isOrder = IsUnderstood(line) || line.Kind == LineKind::Replaced;
  Require(isOrder == !line.Order.empty(), "an order in vain", line);
  const bool needsReason = IsUnclear(line) || IsDoubtful(line) || line.Kind == LineKind::Replaced;
  Require(!needsReason || !line.Reason.empty(), "no reason", line);
  Require((line.Kind == LineKind::Ambiguous) == (line.Candidates.size() > 1), "candidates", line);
}

/// What is sure stays sure when it is read alone: nothing around it made it so, and nothing else in
/// its line speaks against it.
void ReadAlone(const model::GameState& game, const ReadLine& line,
               const exchange::ReadingOptions& options, const std::vector<ReadLine>& lines) {
  if (line.Kind != LineKind::Order) return;
  const ReadLine alone = exchange::ReadOrder(game, line.Order, options, lines);
  Require(alone.Kind == LineKind::Order && alone.Order == line.Order, "unsure alone", line);
}

/// The text without what stands in round brackets.
std::string WithoutBrackets(std::string_view text) {
  std::string left;
  int depth = 0;
  for (const char c : text) {
    if (c == '(') ++depth;
    if (depth == 0) left += c;
    if (c == ')' && depth > 0) --depth;
  }
  return left;
}

/// No remark makes a sure order another one: without it, and without the rest of the text, it reads
/// the same where it is understood at all. A line in the exact form keeps its case.
void ReadWithoutRemarks(const model::GameState& game, const ReadLine& line,
                        const exchange::ReadingOptions& options,
                        const std::vector<ReadLine>& lines) {
  if (line.Kind != LineKind::Order) return;
  for (const std::string& text : {line.Written, WithoutBrackets(line.Written)}) {
    const ReadLine alone = exchange::ReadOrder(game, text, {line.Power, options.Repairs}, lines);
    const bool isSame = text::UpperCase(alone.Order) == text::UpperCase(line.Order);
    Require(alone.Kind != LineKind::Order || isSame, "another one alone", line);
  }
}

/// Every order and candidate must read as itself.
void ReadAgain(const model::GameState& game, const std::vector<ReadLine>& lines) {
  std::vector<std::string> orders;
  for (const ReadLine& line : lines) {
    if (!line.Order.empty()) orders.push_back(line.Order);
    orders.insert(orders.end(), line.Candidates.begin(), line.Candidates.end());
  }
  std::string text;
  for (const std::string& order : orders)
    text.append(order).append("\r\n");
  const std::vector<ReadLine> again = exchange::ReadOrders(game, text, {});
  if (again.size() != orders.size()) std::abort();
  for (std::size_t i = 0; i < orders.size(); ++i)
    Require(again[i].Order == orders[i], "does not read as itself", again[i]);
}

void ReadAll(model::GameState game, std::string_view text,
             const exchange::ReadingOptions& options) {
  const std::vector<ReadLine> lines = exchange::ReadOrders(game, text, options);
  int number = 0;
  for (const ReadLine& line : lines) {
    Require(line.Number == number || line.Number == number + 1, "a line is missing", line);
    number = line.Number;
    CheckLine(text, line);
    ReadAlone(game, line, options, lines);
    ReadWithoutRemarks(game, line, options, lines);
  }
  ReadAgain(game, lines);
  CheckLine(text, exchange::ReadOrder(game, text, options, lines));
  exchange::FileOrders(game, lines);
}

/// What the bytes are as a file in UTF-16; empty for one that is refused.
std::string FromUtf16(std::string_view bytes) {
  try {
    return exchange::OrdersFileText("\xFF\xFE" + std::string(bytes), "orders");
  } catch (const model::FileError&) {
    return {};
  }
}

std::vector<exchange::TextRepair> Repairs(std::string_view bytes) {
  try {
    return exchange::LoadTextRepairs(bytes, "repairs");
  } catch (const model::FileError&) {
    return {};
  }
}

}  // namespace
}  // namespace orb

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  std::string bytes(data + 1, data + size);
  if ((data[0] & 0x80U) != 0) bytes = orb::FromUtf16(bytes);
  const std::string_view input = bytes;
  const std::size_t nul = input.find('\0');
  const bool hasRepairs = nul != std::string_view::npos;
  const auto repairs = orb::Repairs(hasRepairs ? input.substr(0, nul) : std::string_view());
  const std::string_view text = hasRepairs ? input.substr(nul + 1) : input;
  constexpr std::array<const char*, 8> powers{"", "ENG", "FRA", "GER", "RUS", "TUR", "AUS", "ITA"};
  orb::ReadAll(orb::GameFor(data[0]), text, {powers[data[0] >> 2U & 7U], repairs});
  return 0;
}
