#include "orders/exchange/shared_words.h"

#include "orders/exchange/doubts.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/prose.h"
#include "orders/exchange/second_thoughts.h"

#include <algorithm>
#include <utility>

namespace orb::exchange {
namespace {

bool IsVerb(const Token& token) {
  return VerbOf(token) != Verb::None;
}

Tokens PartOf(Tokens line, TokenRange range) {
  return line.subspan(range.Begin, range.End - range.Begin);
}

/// Behind "Hello," or "Hi Tom,".
Tokens PastGreeting(Tokens part) {
  constexpr std::size_t longest = 3;
  if (part.empty() || !HasUse(part[0], WordUse::Greeting)) return part;
  for (std::size_t at = 1; at < std::min(longest, part.size()); ++at) {
    if (IsA(part[at], TokenKind::Comma) && at + 1 < part.size()) return part.subspan(at + 1);
  }
  return part;
}

/// The two runs of tokens as one.
template <class Run>
std::vector<Token> Joined(std::vector<Token> first, const Run& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

/// A unit as it is written and what an order has its own unit do.
std::string WithAction(Tokens unit, const std::string& order) {
  while (unit.size() > 1 && IsA(unit.back(), TokenKind::Dot))
    unit = unit.first(unit.size() - 1);
  const std::string_view last = unit.back().Written;
  std::string text(unit[0].Written.data(), last.data() + last.size());
  return text.append(order, std::min(order.find(')') + 1, order.size()));
}

}  // namespace

std::vector<Token> WithSharedType(Tokens part, std::optional<Token>& plural) {
  const auto isType = [](const Token& token) { return UnitTypeOf(token) != 0; };
  if (const auto type = std::ranges::find_if(part, isType); type != part.end()) {
    plural.reset();
    if (IsWord(*type, "armies") || IsWord(*type, "fleets")) plural = *type;
    return {};
  }
  return plural ? Joined({*plural}, part) : std::vector<Token>();
}

void ShareVerbs(Tokens line, const KnownGame& known, const Context& context, PartsRead& parts) {
  for (std::size_t i = parts.size(); i-- > 1;) {
    auto& [range, part] = parts[i - 1];
    const PartRead& next = parts[i].second;
    if (IsUnderstood(part) || part.IsRemark || next.Kind != LineKind::Order) continue;
    const Tokens whole = PastGreeting(PartOf(line, range));
    // "Germany: A Ber, A Mun hold", "with Ruhr and Silesia supporting it".
    const auto colon = std::ranges::find(whole, TokenKind::Colon, &Token::Kind);
    const bool isWith = IsWord(whole[0], "with") || IsWord(whole[0], "and");
    const Tokens unit = whole.subspan(isWith && whole.size() > 1 ? 1 : 0);
    if (std::ranges::any_of(unit, IsVerb)) continue;
    const auto first = colon == whole.end() || colon + 1 == whole.end() ? whole.begin() : colon + 1;
    const std::string text = WithAction(unit, next.Meant.All[0].Line);
    const std::vector<Token> tokens = CutTokens(text);
    Context tried = context;
    PartRead read = ReadPart(tokens, known, tried);
    const bool isSure = read.Kind == LineKind::Order && !read.IsGuess;
    if (!isSure || (UnitTypeOf(*first) == 0 && !IsPossible(read.Meant.All[0], known))) continue;
    // The order is written in its own part, as far as it goes.
    read.End = range.End - range.Begin;
    part = std::move(read);
  }
}

std::optional<PartRead> ReadSameHelp(Tokens line, const PartsRead& parts, TokenRange range,
                                     const KnownGame& known, const Context& context) {
  if (parts.empty() || parts.back().second.Kind != LineKind::Order) return std::nullopt;
  const auto& [before, part] = parts.back();
  const Tokens unit = PartOf(line, range);
  // The hyphen of "Mid-Atlantic" is no verb.
  const bool hasVerb = std::ranges::any_of(
      unit, [](const Token& token) { return IsVerb(token) && token.Text != "-"; });
  if (hasVerb || !TellsHelpers(PartOf(line, before))) return std::nullopt;
  const std::string text = WithAction(unit, part.Meant.All[0].Line);
  const std::vector<Token> tokens = CutTokens(text);
  Context tried = context;
  PartRead read = ReadPart(tokens, known, tried);
  if (read.Kind != LineKind::Order || read.IsGuess) return std::nullopt;
  read.End = unit.size();
  return read;
}

std::optional<PartRead> ReadSameUnit(Tokens line, const PartsRead& parts, TokenRange range,
                                     const KnownGame& known, const Context& context) {
  if (!IsVerb(line[range.Begin]) || parts.size() < 2) return std::nullopt;
  auto last = parts.rbegin() + 1;
  while (last != parts.rend() && last->second.IsRemark &&
         IsSecondThought(PartOf(line, last->first)))
    ++last;
  if (last == parts.rend() || !IsUnderstood(last->second)) return std::nullopt;
  const Tokens unit = PartOf(line, last->first);
  const Tokens rest = PartOf(line, range);
  const auto verb = std::ranges::find_if(unit, IsVerb);
  if (verb == unit.begin()) return std::nullopt;
  Context tried = context;
  PartRead read = ReadPart(Joined({unit.begin(), verb}, rest), known, tried);
  if (!IsUnderstood(read)) return std::nullopt;
  read.End = rest.size();
  return read;
}

bool JoinBroken(ReadLine& above, ReadLine& below, const SourceLine& line, const KnownGame& known,
                const Context& context) {
  const bool areBroken =
      above.Kind == LineKind::NotUnderstood && above.Number + 1 == line.Number && !line.IsTooLong &&
      !line.All.empty() &&
      (below.Kind == LineKind::NotUnderstood || below.Kind == LineKind::PassedOver);
  if (!areBroken) return false;
  const std::size_t start = PastLineStart(line.All);
  if (start == line.All.size()) return false;
  // "Order 1: to Bur" goes on behind its number.
  const std::size_t begin = IsA(line.All[0], TokenKind::Dash) ? 0 : line.All[start].Begin;
  const std::string joined = ToPlain(above.Written, 0).Text + " " + line.Plain.Text.substr(begin);
  const std::vector<Token> tokens = CutTokens(joined);
  Context tried{model::FindCountry(above.Power), context.Orders};
  const PartRead read = ReadPart(tokens, known, tried);
  if (read.Kind != LineKind::Order || read.IsGuess) return false;
  if (FindDoubt(Tokens(tokens).subspan(read.End), tokens, known.Names)) return false;
  const Meaning& meant = read.Meant.All[0];
  above.Kind = LineKind::Order;
  above.Order = meant.Line;
  above.Power = PowerText(meant.Power);
  above.Reason = meant.Objection;
  above.ReasonPlace = above.Place;
  below.Kind = LineKind::PassedOver;
  below.Reason.clear();
  return true;
}

}  // namespace orb::exchange
