#include "orders/exchange/exact_line.h"

#include "model/text.h"
#include "orders/parser.h"
#include "orders/syntax_fault.h"

#include <vector>

namespace orb::exchange {
namespace {

using orders::OrderLine;

std::string UnitText(const std::string& type, const std::string& location) {
  std::string text = type;
  return text.append("(").append(location).append(")");
}

/// The words of a line that has single blanks between them and none at its ends.
std::vector<std::string_view> SplitAtBlanks(std::string_view line) {
  std::vector<std::string_view> words;
  for (std::size_t end = line.find(' '); end != std::string_view::npos; end = line.find(' ')) {
    words.push_back(line.substr(0, end));
    line.remove_prefix(end + 1);
  }
  words.push_back(line);
  return words;
}

/// Reads the words of a line one by one; once one does not fit, nothing fits any more.
class ExactReader {
 public:
  ExactReader(const model::Map& map, std::string_view line)
      : map_(map), words_(SplitAtBlanks(line)) {}

  bool Power(std::string& power) { return Take(power, model::FindCountry(Word()) != 0); }

  bool Unit(std::string& type, std::string& location) {
    const std::string_view word = Word();
    constexpr std::size_t bracket = 2;
    const bool fits = word.size() > bracket && (word[0] == 'A' || word[0] == 'F') &&
                      word[1] == '(' && word.back() == ')';
    if (!fits) return false;
    const std::string_view name = word.substr(bracket, word.size() - bracket - 1);
    if (model::FindProvince(map_, name) == 0) return false;
    type.assign(1, word[0]);
    location = name;
    ++next_;
    return true;
  }

  bool Place(std::string& location) {
    return Take(location, model::FindProvince(map_, Word()) != 0);
  }

  /// One of the verbs, upper-cased.
  bool Verb(std::string& kind, std::initializer_list<std::string_view> verbs) {
    const std::string word = model::UpperCase(Word());
    for (const std::string_view verb : verbs) {
      if (word != verb) continue;
      kind = verb;
      ++next_;
      return true;
    }
    return false;
  }

  bool AtEnd() const { return next_ == words_.size(); }

 private:
  std::string_view Word() const { return AtEnd() ? std::string_view() : words_[next_]; }

  bool Take(std::string& into, bool fits) {
    if (!fits) return false;
    into = words_[next_++];
    return true;
  }

  const model::Map& map_;
  std::vector<std::string_view> words_;
  std::size_t next_ = 0;
};

bool ReadMovesLine(ExactReader& reader, OrderLine& order) {
  if (!reader.Power(order.Power) || !reader.Unit(order.UnitType, order.Location)) return false;
  if (!reader.Verb(order.Kind, {"-", "HOLD", "S", "C"})) return false;
  if (order.Kind == "HOLD") return true;
  if (order.Kind == "-") return reader.Place(order.Target);
  if (!reader.Power(order.Power2)) order.Power2 = order.Power;
  if (!reader.Unit(order.UnitType2, order.Target)) return false;
  if (!reader.Verb(order.Kind2, {"-", "HOLD"})) return false;
  return order.Kind2 == "HOLD" || reader.Place(order.Target2);
}

bool ReadRetreatsLine(ExactReader& reader, OrderLine& order) {
  if (!reader.Power(order.Power) || !reader.Unit(order.UnitType, order.Location)) return false;
  if (!reader.Verb(order.Kind, {"RETREAT", "DISBAND"})) return false;
  return order.Kind == "DISBAND" || reader.Place(order.Target);
}

bool ReadAdjustmentsLine(ExactReader& reader, OrderLine& order) {
  return reader.Power(order.Power) && reader.Verb(order.Kind, {"BUILD", "DISBAND"}) &&
         reader.Unit(order.UnitType, order.Location);
}

bool ReadLineOf(OrderStage stage, ExactReader& reader, OrderLine& order) {
  switch (stage) {
    case OrderStage::Moves:
      return ReadMovesLine(reader, order);
    case OrderStage::Retreats:
      return ReadRetreatsLine(reader, order);
    case OrderStage::Adjustments:
      return ReadAdjustmentsLine(reader, order);
    case OrderStage::None:
      break;
  }
  return false;
}

}  // namespace

OrderStage StageOf(const model::GameState& game) {
  if (game.Stage == "moves") return OrderStage::Moves;
  if (game.Stage == "retreats") return OrderStage::Retreats;
  return game.Stage == "adjustments" ? OrderStage::Adjustments : OrderStage::None;
}

std::string FormatOrder(const OrderLine& order, OrderStage stage) {
  const std::string unit = UnitText(order.UnitType, order.Location);
  const std::string verb = order.Kind.size() > 1 ? model::LowerCase(order.Kind) : order.Kind;
  std::string line = order.Power;
  line.append(" ");
  if (stage == OrderStage::Adjustments) return line.append(verb).append(" ").append(unit);
  line.append(unit).append(" ").append(verb);
  if (IsSupport(order) || IsConvoy(order)) {
    if (order.Power2 != order.Power) line.append(" ").append(order.Power2);
    line.append(" ").append(UnitText(order.UnitType2, order.Target));
    if (order.Kind2 == "HOLD") return line.append(" hold");
    return line.append(" - ").append(order.Target2);
  }
  if (!order.Target.empty()) line.append(" ").append(order.Target);
  return line;
}

std::optional<OrderLine> ReadExactLine(const model::Map& map, OrderStage stage,
                                       std::string_view line) {
  ExactReader reader(map, line);
  OrderLine order;
  if (!ReadLineOf(stage, reader, order) || !reader.AtEnd()) return std::nullopt;
  if (stage == OrderStage::Moves &&
      orders::FindSyntaxFault(map, order) != orders::SyntaxFault::None) {
    return std::nullopt;
  }
  return order;
}

}  // namespace orb::exchange
