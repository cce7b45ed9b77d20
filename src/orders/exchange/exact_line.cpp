#include "orders/exchange/exact_line.h"

#include "text/strings.h"

#include <utility>

namespace orb::exchange {
namespace {

using orders::OrderKind;

std::string UnitText(const std::string& type, const std::string& location) {
  std::string text = type;
  return text.append("(").append(location).append(")");
}

std::string SecondPower(const PlainOrder& order, bool always) {
  return always || order.Power2 != order.Power ? order.Power2 + " " : std::string();
}

std::string Format(const PlainOrder& order, model::Stage stage, bool alwaysNamesPower) {
  const std::string unit = UnitText(order.UnitType, order.Location);
  // Lines have verbs in small letters, but S and C in capitals and the dash as it is.
  const bool isWord = KindWord(order.Kind).size() > 1;
  const std::string verb =
      isWord ? text::LowerCase(KindWord(order.Kind)) : std::string(KindWord(order.Kind));
  std::string line = order.Power;
  line.append(" ");
  if (stage == model::Stage::Adjustments) return line.append(verb).append(" ").append(unit);
  line.append(unit).append(" ").append(verb);
  if (order.Kind == OrderKind::Support || order.Kind == OrderKind::Convoy) {
    line.append(" ").append(SecondPower(order, alwaysNamesPower));
    line.append(UnitText(order.UnitType2, order.Target));
    if (order.Kind2 == OrderKind::Hold) return line.append(" hold");
    return line.append(" - ").append(order.Target2);
  }
  if (!order.Target.empty()) line.append(" ").append(order.Target);
  return line;
}

}  // namespace

std::string FormatOrder(const PlainOrder& order, model::Stage stage) {
  return Format(order, stage, false);
}

std::optional<PlainOrder> ReadExactLine(const model::Map& map, model::Stage stage,
                                        std::string_view line) {
  std::string work;
  const orders::OrderWords words = orders::CutOrder(line, stage, work);
  if (ReadParts(map, words, stage).Fault != orders::SyntaxFault::None) return std::nullopt;
  const auto text = [](std::string_view word) { return std::string(word); };
  PlainOrder order{text(words.Power),  text(words.UnitType), text(words.Location),
                   words.Kind,         text(words.Power2),   text(words.UnitType2),
                   text(words.Target), words.Kind2,          text(words.Target2)};
  const std::string upper = text::UpperCase(line);
  // The parser is forgiving: it accepts lines with blanks or words too many. Only a line that comes
  // out again when it is formatted has the exact form. Names that the parser found are spelled
  // exactly, except for the power of an adjustment.
  const bool isExact =
      line.starts_with(order.Power) && (upper == text::UpperCase(Format(order, stage, false)) ||
                                        upper == text::UpperCase(Format(order, stage, true)));
  return isExact ? std::optional(std::move(order)) : std::nullopt;
}

}  // namespace orb::exchange
