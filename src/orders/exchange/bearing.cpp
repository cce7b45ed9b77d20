#include "orders/exchange/bearing.h"

#include "orders/exchange/asides.h"
#include "orders/exchange/harmless_words.h"
#include "orders/exchange/open_matters.h"
#include "orders/exchange/other_matters.h"
#include "orders/exchange/rest_holds.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "orders/exchange/sentences.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orb::exchange {
namespace {

/// What the words of a sentence signal, all together.
class Signals {
 public:
  explicit Signals(Tokens sentence) {
    for (const Token& token : sentence)
      all_ |= token.Means.Signals;
  }

  template <class... Some>
  bool Has(Some... some) const {
    return (((all_ & static_cast<unsigned>(some)) != 0) || ...);
  }

 private:
  unsigned all_ = 0;
};

bool Signs(const Token& token, Signal signal) {
  return (token.Means.Signals & static_cast<unsigned>(signal)) != 0;
}

bool IsOfFooter(const Token& token) {
  return HasUse(token, WordUse::Footer);
}

/// Closings of letters, what programs write below them, and offers of help: "Take care", "Sent from
/// my phone", "If anything is unclear".
bool IsOfLetter(Tokens words) {
  constexpr std::array<std::string_view, 4> polish{"zobaczenia", "widzenia", "jutra", "uslyszenia"};
  if (words.size() > 1 && IsWord(words[0], "do") && IsOneOf(words[1], polish)) return true;
  if (IsWord(words[0], "gg") || IsWord(words[0], "glhf")) return true;
  if (std::ranges::any_of(words, IsOfFooter)) return true;
  if (words.size() > 1 && IsWord(words[0], "take") &&
      (IsWord(words[1], "care") || IsWord(words.back(), "easy")))
    return true;
  return words.size() > 2 && IsWord(words[0], "all") && IsWord(words[1], "the");
}

/// "If anything is wrong, call me" offers, "this is wrong" does not.
bool Offers(Tokens words) {
  constexpr std::array<std::string_view, 17> any{
      "if",   "excuse", "pardon", "forgive", "any", "anything", "questions", "case",  "hope",
      "help", "wenn",   "falls",  "si",      "se",  "als",      "hvis",      "fragen"};
  return IsOffer(words) &&
         std::ranges::any_of(words, [&](const Token& token) { return IsOneOf(token, any); });
}

/// Where the first word stands that is more than "please", "but just" and the like.
std::size_t FirstWord(Tokens words) {
  constexpr std::array<std::string_view, 18> openings{
      "so",   "then",     "just", "but",  "or",  "and",  "okay", "ok",   "well",
      "also", "actually", "oh",   "aber", "und", "mais", "et",   "pero", "ma"};
  std::size_t at = 0;
  while (at + 1 < words.size() &&
         (!IsA(words[at], TokenKind::Word) || IsOneOf(words[at], openings) ||
          HasUse(words[at], WordUse::Filler)))
    ++at;
  return at;
}

/// "No. 2", "number two", "line 3".
bool CountsLines(Tokens words) {
  constexpr std::array<std::string_view, 8> counting{"no",   "number", "nr",    "line",
                                                     "rule", "zeile",  "ligne", "numero"};
  constexpr std::array<std::string_view, 6> numbers{"one", "two", "three", "four", "five", "six"};
  for (std::size_t at = 0; at + 1 < words.size(); ++at) {
    if (!IsOneOf(words[at], counting)) continue;
    const std::size_t next = at + 1 + (IsA(words[at + 1], TokenKind::Dot) ? 1 : 0);
    if (next == words.size()) return false;
    if (IsOneOf(words[next], numbers) || (IsNumber(words[next]) && words[next].Text.size() < 3))
      return true;
  }
  return false;
}

/// "The last line", "la linea anterior".
bool NamesLine(Tokens words) {
  constexpr std::array<std::string_view, 11> nouns{
      "line", "row", "zeile", "ligne", "linea", "riga", "linha", "regel", "linje", "rad", "wiersz"};
  const auto points = [&](std::size_t at) {
    return at < words.size() && Signs(words[at], Signal::Points) && !IsOneOf(words[at], nouns);
  };
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (IsOneOf(words[at], nouns) && ((at > 0 && points(at - 1)) || points(at + 1))) return true;
  }
  return false;
}

/// "Nothing else moves", but not "nothing moves".
bool TellsOfOthers(Tokens words) {
  return TellsOfNothing(words) && words.size() > 2 && !IsWord(words[1], "moves");
}

/// "No worries", "not bad".
bool IsCalm(Tokens words) {
  constexpr std::array<std::string_view, 11> calm{"worries", "feelings", "problem", "hurry",
                                                  "rush",    "stress",   "bad",     "pressure",
                                                  "excuse",  "fear",     "mercy"};
  return std::ranges::any_of(words, [&](const auto& token) { return IsOneOf(token, calm); });
}

/// "Just the first", "those are Tom's", "these are from spring".
bool IsOfSome(Tokens words) {
  constexpr std::ptrdiff_t few = 4;
  const auto isOrders = [](const Token& token) { return HasUse(token, WordUse::Orders); };
  const bool points = std::ranges::any_of(
      words, [&](const Token& token) { return Signs(token, Signal::Points) && !isOrders(token); });
  const auto count = std::ranges::count(words, TokenKind::Word, &Token::Kind);
  const bool isBrief = count <= few || (count == few + 1 &&
                                        (IsWord(words[0], "these") || IsWord(words[0], "those")));
  return points && isBrief && std::ranges::none_of(words, isOrders) &&
         std::ranges::none_of(words, IsNumber);
}

/// "Old", "gammel", "was": of another season, where it is nearly all that is said.
bool AreOld(Tokens words, std::ptrdiff_t count) {
  constexpr std::array<std::string_view, 30> old{
      "old",      "alt",      "alte",    "ancien",    "anciens",  "ancienne", "antiguo", "antigua",
      "antiguos", "antiguas", "viejo",   "vecchio",   "vecchi",   "vecchia",  "antigo",  "antigos",
      "antigas",  "velho",    "oud",     "oude",      "gammel",   "gamle",    "gammal",  "gamla",
      "stare",    "stary",    "gestern", "yesterday", "gisteren", "wczoraj"};
  constexpr std::ptrdiff_t few = 3;
  return count <= few &&
         (std::ranges::any_of(words, [&](const auto& token) { return IsOneOf(token, old); }) ||
          (count == 1 && IsWord(words[0], "was")));
}

/// "My brother's orders".
bool AreSomebodys(Tokens words) {
  constexpr std::array<std::string_view, 13> contracted{"it",    "that",  "here", "he",  "she",
                                                        "what",  "there", "let",  "who", "how",
                                                        "where", "today", "this"};
  const bool isOfOrders =
      std::ranges::any_of(words, [](const Token& token) { return HasUse(token, WordUse::Orders); });
  return isOfOrders && std::ranges::any_of(words, [&](const Token& token) {
           return token.Written.ends_with("'s") && !IsOneOf(token, contracted) &&
                  !token.Means.BeginsPower;
         });
}

/// "Fleet Edinburgh", "the army in Tyrolia".
bool NamesUnit(Tokens words, const PlaceNames& names) {
  constexpr std::size_t near = 3;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (UnitTypeOf(words[at]) == 0) continue;
    for (std::size_t next = at + 1; next < std::min(at + near + 1, words.size()); ++next) {
      if (VerbOf(words[next]) != Verb::None) break;
      if (!names.At(words, next).empty()) return true;
    }
  }
  return false;
}

/// Whether what stands before and behind words of small talk does not bear on orders.
bool BearsNotBeside(Tokens sentence, TokenRange chat, Unplaced unit) {
  const Tokens before = sentence.first(chat.Begin);
  const Tokens behind = sentence.subspan(chat.End);
  return (before.empty() || !BearsOnOrders(before, unit)) &&
         (behind.empty() || !BearsOnOrders(behind, unit));
}

}  // namespace

bool BearsOnOrders(Tokens sentence, Unplaced unit) {
  constexpr std::array<std::string_view, 12> own{"my",  "our",  "mine", "final", "meine", "mes",
                                                 "mis", "miei", "meus", "mijn",  "mina",  "moje"};
  constexpr std::ptrdiff_t few = 4;
  constexpr std::ptrdiff_t brief = 6;
  const auto count = std::ranges::count(sentence, TokenKind::Word, &Token::Kind);
  const auto chat = FindSaying(sentence, Saying::Chats);
  if (chat && BearsNotBeside(sentence, *chat, unit)) return false;
  if (count == 0 || IsSecondThought(sentence) || TellsOfOthers(sentence)) return false;
  const Signals signals(sentence);
  const bool asks = sentence.back().Text == "?";
  if (asks && (AsksAfterHealth(sentence) || AsksOfLife(sentence))) return false;
  if (Apologizes(sentence) && !signals.Has(Signal::Points, Signal::Takes)) return false;
  // "Okay?", "Right?"
  if (asks && (count < 3 || signals.Has(Signal::Points, Signal::Hints, Signal::Says))) return true;
  const bool chooses = std::ranges::any_of(
      sentence, [](const Token& token) { return HasUse(token, WordUse::Reservation); });
  if (asks && chooses) return true;
  if (IsOfLetter(sentence) || Offers(sentence)) return false;
  if (FindSaying(sentence, Saying::Leaves)) return true;
  if (signals.Has(Signal::Rejects, Signal::Chooses)) return !IsCalm(sentence);
  const bool isOwn =
      std::ranges::any_of(sentence, [&](const auto& token) { return IsOneOf(token, own); });
  if (signals.Has(Signal::Points)) {
    if (signals.Has(Signal::Denies, Signal::Leaves, Signal::Says)) return true;
    const bool acts = signals.Has(Signal::Takes, Signal::Later);
    if (signals.Has(Signal::Past)) return true;
    if (!isOwn && (acts || IsOfSome(sentence))) return true;
  }
  if (signals.Has(Signal::Hints) && signals.Has(Signal::Says, Signal::Takes)) return true;
  if (signals.Has(Signal::Says) && (signals.Has(Signal::Denies) || count < few)) return true;
  if (signals.Has(Signal::Plans) && signals.Has(Signal::Hints, Signal::Points)) return true;
  if (CountsLines(sentence) || NamesLine(sentence)) return true;
  if ((count < brief && AreSomebodys(sentence)) || AreOld(sentence, count)) return true;
  const bool isOfUnit =
      unit == Unplaced::Bears && std::ranges::any_of(sentence, [](const Token& token) {
        return UnitTypeOf(token) != 0 && token.Text.size() > 1;
      });
  if (count > brief) return false;
  const Token& first = sentence[FirstWord(sentence)];
  const bool isUnfinished =
      sentence.size() > 1 && IsWord(sentence[0], "to") && IsWord(sentence[1], "be");
  const bool isMore = IsWord(first, "more") && signals.Has(Signal::Later);
  // "So would my brother play", but not "may the best one win".
  const bool isOpen = signals.Has(Signal::Leaves) && !IsWord(first, "may");
  return isOfUnit || isUnfinished || isOpen || isMore || Signs(first, Signal::Takes) ||
         Signs(first, Signal::Later) ||
         (Signs(first, Signal::Denies) && count < few && !IsCalm(sentence));
}

bool Apologizes(Tokens sentence) {
  constexpr std::array<std::string_view, 22> matters{
      "if",   "for", "about", "the", "det", "at", "att",  "om",  "dass", "das", "die",
      "wenn", "que", "si",    "per", "se",  "il", "pour", "por", "voor", "dat", "ze"};
  for (std::size_t at = 0; at + 1 < sentence.size(); ++at) {
    if (HasUse(sentence[at], WordUse::Plea) && IsOneOf(sentence[at + 1], matters)) return true;
  }
  return false;
}

bool IsFooter(Tokens line) {
  constexpr std::ptrdiff_t many = 3;
  return std::ranges::count_if(line, IsOfFooter) >= many;
}

std::optional<TokenRange> FindBearing(Tokens line, const PlaceNames& names) {
  if (line.empty() || IsA(line.back(), TokenKind::Colon)) return std::nullopt;
  for (const auto& [begin, end] : SentencesOf(line)) {
    const Tokens sentence = line.subspan(begin, end - begin);
    const Unplaced unit = NamesUnit(sentence, names) ? Unplaced::Ignored : Unplaced::Bears;
    if (BearsOnOrders(sentence, unit) && !SpeaksOfElse(sentence, names))
      return TokenRange{begin, end};
  }
  return std::nullopt;
}

}  // namespace orb::exchange
