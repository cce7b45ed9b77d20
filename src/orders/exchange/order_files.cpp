#include "orders/exchange/order_files.h"

#include "model/errors.h"
#include "model/seasons.h"
#include "orders/order_list.h"
#include "text/encoding.h"
#include "text/utf8.h"

#include <algorithm>

namespace orb::exchange {
namespace {

/// Bytes of UTF-16 as UTF-8. Characters beyond U+FFFF come as two units, a high and a low
/// surrogate; one without the other becomes U+FFFD.
std::string FromUtf16(std::string_view bytes, bool isLowFirst) {
  constexpr char32_t replacement = 0xFFFD;
  std::string utf8;
  char32_t high = 0;
  const auto end = [&] {
    if (high != 0) text::AppendUtf8(utf8, replacement);
    high = 0;
  };
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const auto first = static_cast<unsigned char>(bytes[at + (isLowFirst ? 1 : 0)]);
    const auto second = static_cast<unsigned char>(bytes[at + (isLowFirst ? 0 : 1)]);
    const char32_t unit = static_cast<char32_t>(first) << 8U | second;
    if (unit >= 0xDC00 && unit < 0xE000 && high != 0) {
      text::AppendUtf8(utf8, 0x10000 + ((high - 0xD800) << 10U) + (unit - 0xDC00));
      high = 0;
      continue;
    }
    end();
    if (unit >= 0xD800 && unit < 0xDC00) {
      high = unit;
    } else {
      text::AppendUtf8(utf8, unit >= 0xDC00 && unit < 0xE000 ? replacement : unit);
    }
  }
  end();
  return utf8;
}

}  // namespace

std::string OrdersFileText(std::string bytes, const std::string& fileName) {
  const bool isLowFirst = bytes.starts_with("\xFF\xFE");
  if (isLowFirst || bytes.starts_with("\xFE\xFF")) {
    bytes = FromUtf16(std::string_view(bytes).substr(2), isLowFirst);
  }
  // No text has such bytes; UTF-16 without its mark, pictures and documents of word processors do.
  if (bytes.find('\0') != std::string::npos) {
    throw model::FileError(
        text::NameInText(fileName) +
        " is not a text file that can be read: it holds bytes of value 0. Orders "
        "are read from texts in UTF-8, Windows-1252 or UTF-16 with its byte "
        "order mark.");
  }
  return bytes;
}

int FileOrders(model::GameState& game, const std::vector<ReadLine>& lines) {
  int filed = 0;
  for (const ReadLine& line : lines) {
    if (line.Kind != LineKind::Order) continue;
    if (orders::FileOrder(orders::StageList(game), line.Order)) ++filed;
  }
  return filed;
}

void AcceptDoubtful(std::vector<ReadLine>& lines) {
  for (ReadLine& line : lines) {
    if (line.Kind == LineKind::Doubtful) line.Kind = LineKind::Order;
  }
}

std::string PowerOf(const std::vector<ReadLine>& lines) {
  std::string power;
  for (const ReadLine& line : lines) {
    if (line.Kind == LineKind::Heading && !line.Power.empty()) return line.Power;
  }
  for (const ReadLine& line : lines) {
    if (!IsUnderstood(line)) continue;
    if (!power.empty() && line.Power != power) return {};
    power = line.Power;
  }
  return power;
}

std::string OrdersText(const model::GameState& game) {
  std::string text;
  for (const std::string& line : orders::StageList(game))
    text.append(line).append("\r\n");
  return text;
}

std::string ProposedOrdersFile(const model::GameState& game) {
  const bool hasOwnName =
      game.Stage == model::Stage::Retreats || game.Stage == model::Stage::Adjustments;
  return model::SeasonCode(game) + "_" +
         std::string(hasOwnName ? StageName(game.Stage) : "orders") + ".txt";
}

}  // namespace orb::exchange
