#include "orders/exchange/shared_words.h"

#include "orders/exchange/doubts.h"
#include "orders/exchange/line_kinds.h"

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

/// The two runs of tokens as one.
template <class Run>
std::vector<Token> Joined(std::vector<Token> first, const Run& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
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
    const Tokens unit = PartOf(line, range);
    // "Berlin and Munich both hold" needs its "both".
    const bool isBoth = std::ranges::any_of(
        PartOf(line, parts[i].first), [](const Token& token) { return IsWord(token, "both"); });
    // "Germany: A Ber, A Mun hold".
    const auto colon = std::ranges::find(unit, TokenKind::Colon, &Token::Kind);
    const auto first = colon == unit.end() || colon + 1 == unit.end() ? unit.begin() : colon + 1;
    const bool isUnit = UnitTypeOf(*first) != 0 || isBoth;
    const bool lacksVerb =
        !IsUnderstood(part) && !part.IsRemark && isUnit && std::ranges::none_of(unit, IsVerb);
    if (!lacksVerb || !IsUnderstood(parts[i].second)) continue;
    const Tokens next = PartOf(line, parts[i].first);
    const auto verb = std::ranges::find_if(next, IsVerb);
    if (verb == next.end()) continue;
    Context tried = context;
    const Tokens does = next.subspan(static_cast<std::size_t>(verb - next.begin()));
    PartRead read = ReadPart(Joined({unit.begin(), unit.end()}, does), known, tried);
    if (read.Kind != LineKind::Order) continue;
    // The order is written in its own part, as far as it goes.
    read.End = unit.size();
    part = std::move(read);
  }
}

std::optional<PartRead> ReadSameUnit(Tokens line, const PartsRead& parts, TokenRange range,
                                     const KnownGame& known, const Context& context) {
  if (!IsVerb(line[range.Begin]) || parts.size() < 2) return std::nullopt;
  const auto& [beforeAt, before] = parts[parts.size() - 2];
  if (!IsUnderstood(before)) return std::nullopt;
  const Tokens unit = PartOf(line, beforeAt);
  const Tokens rest = PartOf(line, range);
  const auto verb = std::ranges::find_if(unit, IsVerb);
  if (verb == unit.begin()) return std::nullopt;
  Context tried = context;
  PartRead read = ReadPart(Joined({unit.begin(), verb}, rest), known, tried);
  if (!IsUnderstood(read)) return std::nullopt;
  read.End = rest.size();
  return read;
}

std::optional<PartRead> ReadPronoun(Tokens line, const PartsRead& parts, TokenRange range,
                                    const KnownGame& known, const Context& context) {
  const Tokens clause = PartOf(line, range);
  const auto verb = std::ranges::find_if(clause, [](const Token& token) {
    return VerbOf(token) == Verb::Support || VerbOf(token) == Verb::Convoy;
  });
  if (verb == clause.end() || parts.size() < 2) return std::nullopt;
  const auto isPronoun = [](const Token& token) {
    return IsWord(token, "it") || IsWord(token, "that") || IsWord(token, "this") ||
           IsWord(token, "him") || IsWord(token, "them");
  };
  const auto isTail = [](const Token& token) {
    return IsWord(token, "up") || IsWord(token, "there") || IsWord(token, "over") ||
           IsWord(token, "move") || IsA(token, TokenKind::Dot);
  };
  const auto pronoun = verb + 1;
  if (pronoun == clause.end() || !isPronoun(*pronoun)) return std::nullopt;
  if (!std::all_of(pronoun + 1, clause.end(), isTail)) return std::nullopt;
  const auto& [beforeAt, before] = parts[parts.size() - 2];
  if (before.Kind != LineKind::Order) return std::nullopt;
  Context tried = context;
  const Tokens order = PartOf(line, beforeAt).first(before.End);
  PartRead read = ReadPart(Joined({clause.begin(), pronoun}, order), known, tried);
  if (!IsUnderstood(read)) return std::nullopt;
  read.End = clause.size();
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
