#include "orders/exchange/embedded.h"

#include "orders/exchange/power_names.h"

#include <algorithm>

namespace orb::exchange {
namespace {

/// Bounds on the tries: how many, and the tokens of the longest order.
constexpr int TryBound = 24;
constexpr std::size_t LengthBound = 40;

bool IsWordToken(const Token& token) {
  return token.Kind == TokenKind::Word;
}

/// Whether words hold the beginning of an order whose end is not understood: what follows is a part
/// of it then, and no order by itself.
bool HoldsBeginning(Tokens words, const PlaceNames& names, bool isTyped) {
  for (std::size_t at = 0; at < words.size(); ++at) {
    const Verb verb = VerbOf(words[at]);
    if (verb == Verb::Support || verb == Verb::Convoy) return true;
    const bool isUnit = UnitTypeOf(words[at]) != 0 && !names.At(words, at + 1).empty();
    if (isUnit && !isTyped) return true;
  }
  const auto last = std::find_if(words.rbegin(), words.rend(), [](const Token& token) {
    return IsWordToken(token) && !HasUse(token, WordUse::Filler);
  });
  if (last == words.rend()) return false;
  const auto at = static_cast<std::size_t>(words.rend() - last) - 1;
  return UnitTypeOf(*last) != 0 || PowerAt(words, at).Power != 0;
}

/// Whether an order may begin at a token, with `before` between it and the order before it.
bool MayBegin(Tokens before, Tokens tokens, const PlaceNames& names) {
  const Token& token = tokens[0];
  const bool isTyped = UnitTypeOf(token) != 0 || PowerAt(tokens, 0).Power != 0;
  const Verb verb = VerbOf(token);
  const bool leads = token.Text.size() > 2 &&
                     (verb == Verb::Build || verb == Verb::Disband || verb == Verb::Retreat);
  if (!isTyped && !leads && names.At(tokens, 0).empty()) return false;
  return !HoldsBeginning(before, names, isTyped || leads);
}

/// Whether words behind an order may be more of it: "- Nwy", "Gas", "(sc)".
bool MayGoOn(Tokens rest, const PlaceNames& names) {
  if (rest.empty()) return false;
  if (VerbOf(rest[0]) != Verb::None || !names.At(rest, 0).empty()) return true;
  return rest.size() > 1 && IsA(rest[0], TokenKind::Open) && CoastLetter(rest[1].Text) != 0;
}

}  // namespace

PartRead Remark() {
  PartRead remark;
  remark.Kind = LineKind::PassedOver;
  remark.IsRemark = true;
  return remark;
}

PartsRead ReadEmbedded(Tokens tokens, const KnownGame& known, Context& context) {
  PartsRead parts;
  std::size_t done = 0;
  int tries = 0;
  const auto goesOn = [&](std::size_t end) {
    return !parts.empty() && MayGoOn(tokens.subspan(done, end - done), known.Names);
  };
  for (std::size_t at = 0; at < tokens.size() && tries < TryBound;) {
    const Tokens before = tokens.subspan(done, at - done);
    const Tokens rest = tokens.subspan(at, std::min(LengthBound, tokens.size() - at));
    if (!MayBegin(before, rest, known.Names)) {
      ++at;
      continue;
    }
    ++tries;
    Context behind = context;
    PartRead part = ReadPart(rest, known, behind, Rest::Anything);
    if (!IsUnderstood(part) || part.Kind == LineKind::Waive) {
      ++at;
      continue;
    }
    if (goesOn(at)) return {};
    if (at > done) parts.emplace_back(TokenRange{done, at}, Remark());
    const bool isParted = parts.empty() || parts.back().second.IsRemark;
    if (!isParted) part.Doubt = parts.back().second.Doubt = "it is not said where the order ends";
    done = at + part.End;
    parts.emplace_back(TokenRange{at, done}, std::move(part));
    context = behind;
    at = done;
  }
  if (goesOn(tokens.size())) return {};
  if (!parts.empty() && done < tokens.size()) {
    parts.emplace_back(TokenRange{done, tokens.size()}, Remark());
  }
  return parts;
}

}  // namespace orb::exchange
