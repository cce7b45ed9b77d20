#include "orders/exchange/embedded.h"

#include "orders/exchange/power_names.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orb::exchange {
namespace {

/// Bounds on the tries: how many, and the tokens of the longest order.
constexpr int TryBound = 24;
constexpr std::size_t LengthBound = 40;

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

/// Whether an order without anything behind it may go on with the next: "A Mar S A Par" "Bur -
/// Mun".
bool IsOpenEnded(const PartRead& part) {
  if (part.Kind != LineKind::Order) return part.Kind == LineKind::Ambiguous;
  const std::string& line = part.Meant.All[0].Line;
  return line.find(" S ") != std::string::npos || line.find(" C ") != std::string::npos;
}

/// Whether words behind an order may be more of it: "- Nwy", "Gas", "(sc)".
bool MayGoOn(Tokens rest, const PlaceNames& names) {
  if (rest.empty()) return false;
  // A long dash before other words begins a thought, an arrow may lead to an outcome.
  constexpr std::array<std::string_view, 12> outcomes{
      "bounced",  "bounce",    "bounces", "fails", "failed",    "failure",
      "succeeds", "succeeded", "success", "cut",   "dislodged", "void"};
  const bool isDash = IsA(rest[0], TokenKind::Dash) && rest.size() > 1 && names.At(rest, 1).empty();
  const bool isApart = isDash && !rest[0].Glued && !rest[1].Glued && IsWordToken(rest[1]) &&
                       VerbOf(rest[1]) == Verb::None &&
                       (!rest[1].Capital || std::ranges::count_if(rest, IsWordToken) > 1);
  const bool isThought =
      isDash && (isApart || rest[0].Text == "--" || HasUse(rest[1], WordUse::Reservation) ||
                 std::ranges::find(outcomes, rest[1].Text) != outcomes.end());
  // "to bounce him" tells a purpose.
  const bool isPurpose =
      IsWord(rest[0], "to") && rest.size() > 1 && HasUse(rest[1], WordUse::Purpose);
  if (isThought || isPurpose) return false;
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
  // A unit alone does nothing, unless a heading says what.
  constexpr std::size_t shortest = 3;
  if (tokens.size() < shortest && context.Orders == Verb::None) return parts;
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
    if (!parts.empty() && IsOpenEnded(parts.back().second)) {
      part.Doubt = parts.back().second.Doubt = "it is not said where the order ends";
    }
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
