#include "orders/exchange/second_thoughts.h"

#include "orders/exchange/asides.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/sentences.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace orb::exchange {
namespace {

/// Whether something is denied, asked or supposed: "these are not", "should I".
bool IsOpen(Tokens tokens) {
  return std::ranges::any_of(tokens, [](const Token& token) {
    return token.Text == "?" || (HasUse(token, WordUse::Condition) && !IsWord(token, "instead"));
  });
}

/// "These are final if Tom agrees".
bool Supposes(Tokens words) {
  constexpr std::array<std::string_view, 15> conjunctions{
      "or", "if", "unless", "when", "provided", "only",  "wenn", "falls",
      "si", "se", "als",    "hvis", "om",       "jesli", "gdy"};
  return std::ranges::any_of(words,
                             [&](const Token& token) { return IsOneOf(token, conjunctions); });
}

/// How many words from here say "instead", and not instead of what; 0: none.
std::size_t LengthOfInstead(Tokens words, std::size_t at) {
  constexpr std::array<std::string_view, 4> single{"instead", "stattdessen", "istallet", "invece"};
  constexpr std::array<std::string_view, 2> afterI{"stallet", "stedet"};
  constexpr std::array<std::string_view, 10> of{"of",   "for", "av",  "di", "della",
                                                "dell", "del", "dei", "de", "da"};
  const auto isOneOf = [&](const auto& list, std::size_t place) {
    return place < words.size() && std::ranges::find(list, words[place].Text) != list.end();
  };
  const std::size_t length = isOneOf(single, at)                                 ? 1
                             : IsWord(words[at], "i") && isOneOf(afterI, at + 1) ? 2
                                                                                 : 0;
  return isOneOf(of, at + length) ? 0 : length;
}

/// "Final:", "now my orders:", "the real moves:": these hold rather than what stands above.
bool IsTitleOfRealOnes(Tokens title) {
  constexpr auto now = std::to_array<std::string_view>(
      {"now", "jetzt", "nun", "maintenant", "ahora", "ora", "adesso", "agora", "nu", "teraz"});
  constexpr auto real = std::to_array<std::string_view>(
      {"real", "true", "actual", "echten", "echte", "wahren", "richtigen", "vrais", "veri",
       "verdad", "verdaderas", "verdadeiras", "serio", "rigtige", "riktiga", "riktige",
       "ordentlige", "prawdziwe"});
  bool isNow = false;
  bool isReal = false;
  bool isOfOrders = false;
  bool isOwn = false;
  bool isFinal = true;
  for (const Token& token : title) {
    if (!IsA(token, TokenKind::Word)) continue;
    isNow = isNow || IsOneOf(token, now);
    isReal = isReal || IsOneOf(token, real);
    isOfOrders = isOfOrders || HasUse(token, WordUse::Orders);
    isOwn = isOwn || (HasUse(token, WordUse::Own) && !IsOneOf(token, now));
    isFinal = isFinal && HasUse(token, WordUse::Definite);
  }
  return isFinal || (isOfOrders && (isReal || (isNow && isOwn)));
}

/// Whether words before a colon, or at the beginning of a line, name a correction: "My final
/// moves:".
bool IsTitleOfCorrection(Tokens line) {
  constexpr std::ptrdiff_t longest = 8;
  const auto colon = std::ranges::find(line, TokenKind::Colon, &Token::Kind);
  const auto end = static_cast<std::size_t>(colon - line.begin());
  const Tokens title = line.first(end);
  const bool hasColon = colon != line.end();
  if (std::ranges::count(title, TokenKind::Word, &Token::Kind) > longest || IsOpen(title)) {
    return false;
  }
  if (hasColon && IsTitleOfRealOnes(title)) return true;
  for (std::size_t at = 0; at < title.size(); ++at) {
    // "Correction - A Par - Pic" does without a colon.
    const bool isOf = at + 1 < title.size() && IsWord(title[at + 1], "of");
    if (HasUse(title[at], WordUse::Correction) && !isOf && (hasColon || at == 0)) return true;
    const auto isPair = [&](WordUse first, WordUse second) {
      return at + 1 < title.size() && HasUse(title[at], first) && HasUse(title[at + 1], second);
    };
    // "Version 2 (final):".
    const bool isVersion =
        hasColon && HasUse(title[at], WordUse::Orders) &&
        std::ranges::any_of(title.subspan(at + 1),
                            [](const Token& token) {
                              return HasUse(token, WordUse::Definite) && token.Text.size() > 3;
                            }) &&
        std::ranges::any_of(title.subspan(at + 1), IsNumber);
    if (isVersion) return true;
    const bool isOrders = isPair(WordUse::Definite, WordUse::Orders) ||
                          (hasColon && isPair(WordUse::Orders, WordUse::Definite));
    const bool isOwn = at > 0 && (IsWord(title[at - 1], "my") || IsWord(title[at - 1], "our") ||
                                  IsWord(title[at - 1], "the"));
    if (isOrders && (hasColon || isOwn || title.size() == 2)) return true;
  }
  return false;
}

/// Without signs around the words, and without a verb of moves behind them: "Statt Burgund geht
/// Paris nach Pic".
Tokens Trimmed(Tokens words) {
  while (!words.empty() && !IsA(words[0], TokenKind::Word))
    words = words.subspan(1);
  while (!words.empty() && (!IsA(words.back(), TokenKind::Word) ||
                            (VerbOf(words.back()) == Verb::Move && words.back().Text.size() > 2)))
    words = words.first(words.size() - 1);
  return words;
}

bool IsConjunction(const Token& token) {
  constexpr auto conjunctions =
      std::to_array<std::string_view>({"and", "und", "et", "y", "e", "en", "og", "och", "i"});
  return IsOneOf(token, conjunctions);
}

/// The place that is all that words name, or 0: "to Spain".
int OnlyPlace(Tokens words, const PlaceNames& names) {
  constexpr auto to =
      std::to_array<std::string_view>({"to", "in", "nach", "en", "a", "al", "ad", "para", "naar",
                                       "til", "till", "do", "sur", "vers", "zu", "na"});
  std::size_t at = 0;
  while (at < words.size() && (HasUse(words[at], WordUse::Filler) || IsOneOf(words[at], to)))
    ++at;
  const auto places = names.At(words, at);
  return !places.empty() && places[0].Next == words.size() ? places[0].Rows[0] : 0;
}

}  // namespace

bool Reconsiders(Tokens words) {
  // Farther on such words belong to another thought.
  constexpr std::size_t few = 5;
  const bool isRemark = !words.empty() && IsA(words[0], TokenKind::Open);
  return !isRemark && !FindSaying(words, Saying::Chats) &&
         FindSaying(words.first(std::min(few, words.size())), Saying::Reconsiders);
}

int ExcludedPlace(Tokens words, const PlaceNames& names) {
  constexpr std::size_t longestPhrase = 4;
  words = Trimmed(words);
  for (std::size_t first = 0; first < std::min<std::size_t>(2, words.size()); ++first) {
    if (first == 1 && !IsConjunction(words[0])) break;
    const Tokens rest = words.subspan(first);
    for (std::size_t length = 1; length <= std::min(longestPhrase, rest.size()); ++length) {
      const auto said = FindSaying(rest.first(length), Saying::Excludes);
      if (!said || said->Begin != 0 || said->End != length) continue;
      if (const int place = OnlyPlace(rest.subspan(length), names); place != 0) return place;
    }
  }
  return 0;
}

int FormerPlace(Tokens words, const PlaceNames& names) {
  constexpr auto before = std::to_array<std::string_view>(
      {"was", "vorher", "zuvor", "fruher", "prima", "antes", "avant", "plus", "tidligere", "for",
       "tidigare", "bylo", "eerst", "before", "formerly"});
  words = Trimmed(words);
  std::size_t at = 0;
  // "Et plus", "prima era".
  while (at < words.size() && at < 2 &&
         (IsOneOf(words[at], before) || IsConjunction(words[at]) || IsWord(words[at], "era")))
    ++at;
  return at == 0 ? 0 : OnlyPlace(words.subspan(at), names);
}

std::size_t PastThoughts(Tokens words) {
  constexpr std::size_t longestPhrase = 4;
  constexpr std::size_t longest = 12;
  if (!words.empty() && IsA(words[0], TokenKind::Open)) return 0;
  bool thinks = false;
  std::size_t past = 0;
  for (std::size_t at = 0; at < std::min(words.size(), longest);) {
    const Tokens rest = words.subspan(at, std::min(longestPhrase, words.size() - at));
    std::size_t length = 0;
    for (const Saying saying : {Saying::Reconsiders, Saying::Corrects}) {
      const auto said = FindSaying(rest, saying);
      if (said && said->Begin == 0) length = std::max(length, said->End);
    }
    thinks = thinks || length > 0;
    const bool isSign = !IsA(words[at], TokenKind::Word) && words[at].Text != "?" &&
                        !IsA(words[at], TokenKind::Open) && !IsA(words[at], TokenKind::Close);
    const bool isPlain = HasUse(words[at], WordUse::Mood, WordUse::Plain) ||
                         IsWord(words[at], "ps") || IsWord(words[at], "on") ||
                         IsWord(words[at], "but") || IsWord(words[at], "nonsense");
    // "The" and a type may begin the order.
    if (length == 0 && !isSign && !(isPlain && UnitTypeOf(words[at]) == 0)) break;
    at += std::max<std::size_t>(length, 1);
    past = at;
  }
  return thinks ? past : 0;
}

std::optional<TokenRange> FindCorrection(Tokens words, bool isBefore) {
  const auto phrase = FindSaying(words, Saying::Corrects);
  if (phrase) return isBefore ? phrase : std::nullopt;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (const std::size_t length = LengthOfInstead(words, at); length != 0)
      return TokenRange{at, at + length};
  }
  return std::nullopt;
}

bool Corrects(Tokens line) {
  if (line.empty()) return false;
  if (IsTitleOfCorrection(line) || IsTitleOfCorrection(LastSentence(line))) return true;
  const auto last = std::find_if(line.rbegin(), line.rend(), [](const Token& token) {
    return IsA(token, TokenKind::Word) && !HasUse(token, WordUse::Filler);
  });
  const auto at = static_cast<std::size_t>(line.rend() - last);
  const bool isInstead = (at > 0 && LengthOfInstead(line, at - 1) == 1) ||
                         (at > 1 && LengthOfInstead(line, at - 2) == 2);
  if (isInstead && !MakesCondition(line)) return true;
  const auto phrase = FindSaying(line, Saying::Corrects);
  if (!phrase || Supposes(line.subspan(phrase->End))) return false;
  if (std::ranges::find(line, "?", &Token::Text) != line.end()) return false;
  // "Ignore yesterday's mail, these are the good ones:".
  const Tokens before = line.first(phrase->Begin);
  return !IsOpen(before) || FindSaying(before, Saying::Revokes);
}

}  // namespace orb::exchange
