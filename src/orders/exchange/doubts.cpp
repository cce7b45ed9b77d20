#include "orders/exchange/doubts.h"

#include "orders/exchange/harmless_words.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace orb::exchange {
namespace {

/// Whether a word next to an order changes nothing.
bool IsHarmless(const Token& token) {
  return HasUse(token, WordUse::Mood, WordUse::Purpose, WordUse::Plain);
}

/// Whether a word of everyday life stands at a token: no hindrance to an order, unless it is
/// somebody's, "(my wife's)".
bool IsEveryday(Tokens remark, std::size_t at) {
  if (at >= remark.size() || !HasUse(remark[at], WordUse::Everyday)) return false;
  const bool isLast = at + 1 == remark.size() || !IsA(remark[at + 1], TokenKind::Word);
  return !isLast || !remark[at].Written.ends_with("'s");
}

/// How many tokens from here name a place; 0: none.
std::size_t LengthOfPlace(Tokens tokens, std::size_t at, const PlaceNames& names) {
  const auto places = names.At(tokens, at);
  return places.empty() ? 0 : places[0].Next - at;
}

/// What an order itself is made of.
class OwnWords {
 public:
  OwnWords(Tokens order, const PlaceNames& names) : names_(names) {
    for (std::size_t at = 0; at < order.size(); ++at) {
      if (order[at].Kind == TokenKind::Word) words_.insert(order[at].Text);
      if (const Verb verb = VerbOf(order[at]); verb != Verb::None) verbs_.push_back(verb);
      if (const int power = PowerAt(order, at).Power; power != 0) powers_.push_back(power);
      for (const PlaceMatch& place : names.At(order, at)) {
        if (place.IsExact || place.Rows.size() == 1) rows_.push_back(place.Rows);
      }
    }
  }

  /// How many tokens from here say again what the order says; 0: none.
  std::size_t Repeated(Tokens tokens, std::size_t at) const {
    for (const PlaceMatch& place : names_.At(tokens, at)) {
      if (std::ranges::find(rows_, place.Rows) != rows_.end()) return place.Next - at;
    }
    const PowerName power = PowerAt(tokens, at);
    if (std::ranges::find(powers_, power.Power) != powers_.end()) return power.Next - at;
    // A coast belongs to the place before it, whatever else stands on such a coast.
    if (CoastLetter(tokens[at].Text) != 0) return 0;
    if (words_.contains(tokens[at].Text) || UnitTypeOf(tokens[at]) != 0) return 1;
    const Verb verb = VerbOf(tokens[at]);
    return verb != Verb::None && std::ranges::find(verbs_, verb) != verbs_.end() ? 1 : 0;
  }

 private:
  const PlaceNames& names_;
  std::unordered_set<std::string_view> words_;
  std::vector<Verb> verbs_;
  std::vector<int> powers_;
  std::vector<std::vector<int>> rows_;
};

/// Whether "(not Bur)" excludes a place that the order does not speak of.
bool ExcludesOther(Tokens remark, const OwnWords& own, const PlaceNames& names) {
  if (ExcludedPlace(remark, names) == 0 || std::ranges::any_of(remark, IsDoubtfulSign))
    return false;
  for (std::size_t at = 1; at < remark.size(); ++at) {
    if (!names.At(remark, at).empty()) return own.Repeated(remark, at) == 0;
  }
  return false;
}

/// Whether words are set off as the outcome of an order: "*bounce*".
bool IsOutcome(Tokens remark) {
  const auto first = std::ranges::find(remark, TokenKind::Word, &Token::Kind);
  if (first == remark.end() || first->Begin == 0 || !HasUse(*first, WordUse::Purpose)) return false;
  return *std::prev(first->Written.data()) == '*';
}

/// Whether the writer signs with one word behind a sentence: "A Par - Bur. /Anders".
bool IsSignature(Tokens remark) {
  constexpr std::string_view mark = ". /";
  return remark.size() == 1 && remark[0].Begin >= mark.size() &&
         std::string_view(remark[0].Written.data() - mark.size(), mark.size()) == mark;
}

/// Whether a word behind thanks or the like is a name: "sorry Franz".
bool IsName(Tokens remark, std::size_t at, const PlaceNames& names) {
  const bool isGreeted = at > 0 && HasUse(remark[at - 1], WordUse::Mood);
  return (isGreeted || IsSignature(remark)) && remark[at].Capital && remark[at].Text.size() > 2 &&
         VerbOf(remark[at]) == Verb::None && remark[at].Means.Uses == 0 &&
         names.At(remark, at).empty() && names.Near(remark[at].Text).empty();
}

}  // namespace

bool IsDecoration(std::string_view signs) {
  // Crosses, bans, bins, questions, doubts, thumbs down, hourglasses, warnings, arrows.
  constexpr std::u32string_view meaning =
      U"\u274C\u274E\u2716\u2717\u2718\u2715\u26D4\u2753\u2754\u26A0\u231B\u23F3\U0001F6AB"
      U"\U0001F5D1\U0001F44E\U0001F914\U0001F937\U0001F928\U0001F6D1\U0001F504\U0001F501";
  while (!signs.empty()) {
    const auto character = text::NextCharacter(signs);
    if (!character) return false;
    const bool isPicture = *character >= 0x1F000 || (*character >= 0x2600 && *character < 0x2800) ||
                           *character == 0x2B50 || *character == 0x200D || *character == 0x20E3 ||
                           *character == 0xFE0F || (*character >= 0x2300 && *character < 0x2400);
    if (!isPicture || meaning.find(*character) != std::u32string_view::npos) return false;
  }
  return true;
}

bool IsDoubtfulSign(const Token& token) {
  if (token.Kind != TokenKind::Mark) return false;
  if (static_cast<unsigned char>(token.Text[0]) >= 0x80) return !IsDecoration(token.Text);
  return token.Text == "?" || token.Text == "<" || token.Text == "~" || token.Text == "%";
}

bool BeginsCondition(Tokens remark, const PlaceNames& names) {
  constexpr auto conjunctions = std::to_array<std::string_view>(
      {"if", "unless", "si", "se", "om", "als", "hvis", "ob", "wenn", "falls", "sofern", "caso"});
  constexpr std::ptrdiff_t few = 3;
  const auto first = std::ranges::find_if(remark, IsWordToken);
  const bool isParted = first != remark.end() && first + 1 != remark.end() &&
                        !IsA(*(first + 1), TokenKind::Word);  // "si, de verdad"
  const auto at = static_cast<std::size_t>(first - remark.begin());
  return first != remark.end() && IsOneOf(*first, conjunctions) && !isParted &&
         LengthOfPlainPhrase(remark, at, names) == 0 && !FindSaying(remark, Saying::Shrugs) &&
         std::ranges::count_if(remark, IsWordToken) > few - 1;
}

std::optional<TokenRange> FindDoubt(Tokens remark, Tokens order, const PlaceNames& names, int power,
                                    EverydayWords everyday) {
  if (IsOutcome(remark)) return TokenRange{0, remark.size()};
  // "For now", "will confirm": words that are harmless each.
  if (!FindSaying(remark, Saying::Chats)) {
    if (const auto said = FindSaying(remark, Saying::Postpones)) return said;
  }
  if (IsReason(remark, names)) return std::nullopt;
  const auto has = [&](WordUse use) {
    return std::ranges::any_of(remark, [&](const Token& token) { return HasUse(token, use); });
  };
  const bool isPurpose = has(WordUse::Purpose);
  if (!isPurpose && BeginsCondition(remark, names)) return TokenRange{0, remark.size()};
  const bool maySpeakToPowers = isPurpose || has(WordUse::Mood);
  std::optional<OwnWords> own;
  // "Over my dead body" and "my brother's orders" are of no everyday life.
  std::optional<bool> saysOfOrders;
  const auto says = [&] {
    if (!saysOfOrders) saysOfOrders = has(WordUse::Orders) || SaysOfOrders(remark);
    return *saysOfOrders;
  };
  for (std::size_t at = 0; at < remark.size();) {
    const Token& token = remark[at];
    const bool isWord = token.Kind == TokenKind::Word;
    // Behind an order this is an outcome.
    const bool isOutcome = IsWord(token, "dislodged");
    if (IsDoubtfulSign(token) || isOutcome) return TokenRange{at, at + 1};
    if (const std::size_t phrase = isWord ? LengthOfPlainPhrase(remark, at, names) : 0;
        phrase > 0) {
      at += phrase;
      continue;
    }
    if (!isWord || IsNumber(token) || HasUse(token, WordUse::Filler)) {
      ++at;
      continue;
    }
    const bool isSmile = at > 0 && IsA(remark[at - 1], TokenKind::Colon) && token.Glued &&
                         (token.Text == "d" || token.Text == "p");
    if (isSmile) {
      ++at;
      continue;
    }
    if (!own) {
      own.emplace(order, names);
      if (ExcludesOther(remark, *own, names)) return std::nullopt;
    }
    std::size_t length = own->Repeated(remark, at);
    if (length == 0 && isPurpose) length = LengthOfPlace(remark, at, names);
    const PowerName named = PowerAt(remark, at);
    if (length == 0 && named.Power != 0 && (maySpeakToPowers || named.Power == power)) {
      length = named.Next - at;
    }
    if (length == 0 && IsName(remark, at, names)) length = 1;
    const auto isEveryday = [&](std::size_t place) {
      return everyday == EverydayWords::Harmless && IsEveryday(remark, place) && !says();
    };
    // "To cover Marseilles", "para cubrir Marsella".
    constexpr std::array<std::string_view, 13> leads{"to",  "pour", "para", "per", "om", "te", "at",
                                                     "att", "zeby", "zum",  "zur", "um", "zu"};
    const bool leadsOn =
        (isPurpose && IsOneOf(token, leads)) || (token.Text == "to" && isEveryday(at + 1));
    const bool isHarmless = IsHarmless(token) || leadsOn || isEveryday(at);
    if (length == 0 && !isHarmless) return TokenRange{at, at + 1};
    at += std::max<std::size_t>(length, 1);
  }
  return std::nullopt;
}

bool IsHarmlessTail(Tokens tail) {
  return std::ranges::all_of(tail, [](const Token& token) {
    const bool isPunctuation = token.Kind == TokenKind::Comma || token.Kind == TokenKind::Dot;
    return isPunctuation || HasUse(token, WordUse::Filler) || IsHarmless(token);
  });
}

bool IsSignOfDoubt(std::string_view line) {
  const bool asks =
      line.find_first_not_of("?! ") == std::string_view::npos && std::ranges::count(line, '?') > 1;
  return asks || (line.starts_with("s/") && std::ranges::count(line, '/') > 1);
}

}  // namespace orb::exchange
