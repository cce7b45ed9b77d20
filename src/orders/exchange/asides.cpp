#include "orders/exchange/asides.h"

#include "orders/exchange/harmless_words.h"
#include "orders/exchange/open_matters.h"
#include "orders/exchange/other_matters.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "orders/exchange/sentences.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace orb::exchange {
namespace {

bool IsColon(const Token& token) {
  return token.Kind == TokenKind::Colon;
}

/// Whether a word of time is not about the orders: "two hours before the bell", "next lot".
bool IsOfSomethingElse(Tokens title, std::size_t at) {
  // "Take these instead of yesterday's:".
  constexpr std::array<std::string_view, 14> replacing{
      "statt",  "anstatt", "anstelle", "instead", "lieu",    "lugar",    "vez",
      "invece", "plaats",  "stedet",   "stallet", "zamiast", "replaces", "ersetzt"};
  constexpr std::array<std::string_view, 8> stems{"replac",   "ersetz",   "remplac", "reemplaz",
                                                  "sostitui", "substitu", "vervang", "erstat"};
  const bool isReplaced = std::ranges::any_of(title, [&](const Token& token) {
    return std::ranges::any_of(stems,
                               [&](std::string_view stem) { return token.Text.starts_with(stem); });
  });
  if (isReplaced) return true;
  constexpr std::size_t near = 5;
  for (std::size_t before = at - std::min(at, near); before < at; ++before) {
    if (IsOneOf(title[before], replacing)) return true;
  }
  // "Het volgende".
  // "The grand tour at last".
  if (at > 0 && IsWord(title[at], "last") && IsWord(title[at - 1], "at")) return true;
  if (at > 0 && IsWord(title[at], "volgende") && IsWord(title[at - 1], "het")) return true;
  constexpr std::array<std::string_view, 5> greets{"guten", "goede", "goeie", "schonen", "god"};
  if (at > 0 && IsWord(title[at], "morgen") && IsOneOf(title[at - 1], greets)) return true;
  const bool isLast = at + 1 == title.size() || !IsA(title[at + 1], TokenKind::Word);
  if (isLast) return false;
  const Token& noun = title[at + 1];
  if (IsWord(title[at], "before")) return HasUse(noun, WordUse::Filler);
  return IsWord(title[at], "next") && (IsWord(noun, "lot") || IsWord(noun, "set") ||
                                       IsWord(noun, "batch") || HasUse(noun, WordUse::Orders));
}

/// Words that often only are polite: "this should be all:".
bool IsPolite(const Token& token) {
  return IsWord(token, "should") || IsWord(token, "could") || IsWord(token, "no") ||
         IsWord(token, "not") || IsWord(token, "may");
}

/// A word of a title by which what stands below is no orders, or not yet: "What France will
/// probably do", "not these".
std::optional<std::size_t> FindOpenWord(Tokens title) {
  constexpr auto rejects = static_cast<unsigned>(Signal::Rejects);
  constexpr auto points = static_cast<unsigned>(Signal::Points);
  constexpr auto denies = static_cast<unsigned>(Signal::Denies);
  // "What I expect Germany to do".
  constexpr auto guesses = std::to_array<std::string_view>(
      {"expect", "expects",  "think",  "believe", "guess",  "erwarte",   "glaube", "denke",
       "crois",  "pense",    "creo",   "pienso",  "espero", "aspetto",   "penso",  "credo",
       "acho",   "verwacht", "geloof", "tror",    "mysle",  "spodziewam"});
  constexpr std::ptrdiff_t few = 3;
  constexpr std::ptrdiff_t most = 6;  // longer ones hold thoughts of their own
  const auto words = std::ranges::count(title, TokenKind::Word, &Token::Kind);
  const bool isBrief = words <= few;
  unsigned signals = 0;
  for (std::size_t at = 0; at < title.size(); ++at) {
    // "For the avoidance of doubt".
    if ((title[at].Means.Signals & rejects) != 0 && !IsWord(title[at], "doubt")) return at;
    if (IsOneOf(title[at], guesses)) return at;
    signals |= title[at].Means.Signals;
  }
  const bool deniesAll = isBrief && (signals & points) != 0 && (signals & denies) != 0;
  return deniesAll || (words <= most && LeavesOpen(title)) ? std::optional<std::size_t>(0)
                                                           : std::nullopt;
}

/// What a line that ends in a colon sets aside: "Draft:", "If Germany agrees:".
std::optional<Aside> ReadTitle(Tokens line) {
  const Tokens last = LastSentence(line);
  const std::size_t skipped = line.size() - last.size();
  if (skipped > 0) {
    const auto at = FindSaying(line.first(skipped), Saying::Revokes);
    if (at) return Aside{AsideScope::Above, *at};
  }
  if (Corrects(last)) return std::nullopt;
  const auto below = [&](std::size_t begin, std::size_t end) {
    return Aside{AsideScope::Below, {skipped + begin, skipped + end}};
  };
  for (std::size_t at = 0; at < last.size(); ++at) {
    if (HasUse(last[at], WordUse::SetsAside, WordUse::Aside, WordUse::Elsewhere) &&
        !IsOfSomethingElse(last, at)) {
      return below(at, at + 1);
    }
  }
  for (const Saying saying : {Saying::Postpones, Saying::Titles, Saying::Gives, Saying::Leaves}) {
    if (const auto at = FindSaying(last, saying)) return below(at->Begin, at->End);
  }
  if (const auto at = FindOpenWord(last)) return below(*at, *at + 1);
  // Behind its first words "if" is one of another thought: "here you go, hope you see if it fits:".
  constexpr std::size_t few = 5;
  const bool isShort = std::ranges::count(last, TokenKind::Word, &Token::Kind) <= 6;
  for (std::size_t at = 0; at < std::min(few, last.size()); ++at) {
    // "Not for publication:", "orders, not press:".
    const bool isForPublic =
        at + 1 < last.size() && (IsWord(last[at + 1], "for") || IsWord(last[at + 1], "press"));
    const bool sets =
        HasUse(last[at], WordUse::Condition) && (at == 0 || isShort || !IsPolite(last[at]));
    if (sets && !isForPublic && !IsWord(last[at], "instead")) return below(at, at + 1);
  }
  return std::nullopt;
}

/// "Armies: (old)".
bool EndsInBracketedTitle(Tokens line) {
  const auto open = std::ranges::find(line, TokenKind::Open, &Token::Kind);
  return open != line.end() && open != line.begin() && IsColon(*(open - 1)) &&
         IsA(line.back(), TokenKind::Close);
}

/// Whether a line leaves what others may do to itself, and orders nothing in return.
bool IsShrug(Tokens line) {
  const bool orders = std::ranges::any_of(line, [](const Token& token) {
    const Verb verb = VerbOf(token);
    return (verb != Verb::None && verb != Verb::Move) || IsWord(token, "dont") ||
           IsWord(token, "but") || IsWord(token, "unless") || IsWord(token, "only") ||
           IsWord(token, "instead") || HasUse(token, WordUse::Orders);
  });
  return !orders && FindSaying(line, Saying::Shrugs);
}

/// "Ignore the following", but not "Revised orders, ignore those below", which are older ones.
bool PointsBelow(Tokens line) {
  constexpr std::array<std::string_view, 14> below{
      "below",    "following",  "follows",  "beneath",      "unten",    "folgenden", "folgende",
      "suivants", "siguientes", "seguenti", "onderstaande", "nedenfor", "nedan",     "ponizsze"};
  const bool isRevised = std::ranges::any_of(line, [](const Token& token) {
    return HasUse(token, WordUse::Definite, WordUse::Correction);
  });
  return !isRevised && std::ranges::any_of(line, [&](const Token& token) {
    return std::ranges::find(below, token.Text) != below.end();
  });
}

/// What one sentence sets aside.
std::optional<Aside> ReadSentence(Tokens line) {
  const auto words = std::ranges::count(line, TokenKind::Word, &Token::Kind);
  if (words == 0) return std::nullopt;
  if (const auto at = FindSaying(line, Saying::Revokes)) {
    // "Ignore these" may stand above them, "scratch that" is of another mail there.
    constexpr std::array<std::string_view, 9> early{"ignore",   "disregard",  "cancelled",
                                                    "canceled", "void",       "withdrawn",
                                                    "ungultig", "ignorieren", "annule"};
    const bool isEarly =
        words <= 2 && std::ranges::find(early, line[at->Begin].Text) != early.end();
    if (isEarly) return Aside{AsideScope::AboveElseBelow, *at};
    return Aside{PointsBelow(line) ? AsideScope::Below : AsideScope::Above, *at};
  }
  if (const auto at = FindSaying(line, Saying::Postpones))
    return Aside{AsideScope::AboveElseBelow, *at};
  const auto asks = IsOffer(line) ? std::nullopt : FindSaying(line, Saying::Asks);
  if (asks) return Aside{AsideScope::Above, *asks};
  if (DoubtsOrders(line)) return Aside{AsideScope::Above, {0, line.size()}};
  constexpr std::ptrdiff_t longestTitle = 4;
  const auto title = words <= longestTitle ? FindSaying(line, Saying::Titles) : std::nullopt;
  // "Draft!" and "(draft)" behind orders speak of them.
  const bool isClosed = IsA(line.back(), TokenKind::Dot) || IsA(line.back(), TokenKind::Close);
  const auto scope = isClosed ? AsideScope::AboveElseBelow : AsideScope::Below;
  return title ? std::optional(Aside{scope, *title}) : std::nullopt;
}

}  // namespace

std::optional<Aside> ReadAside(Tokens line, const PlaceNames& names) {
  if (line.empty()) return std::nullopt;
  if (IsColon(line.back()) || EndsInBracketedTitle(line)) return ReadTitle(line);
  for (const auto& [begin, end] : SentencesOf(line)) {
    const Tokens sentence = line.subspan(begin, end - begin);
    const auto aside = SpeaksOfElse(sentence, names) ? std::nullopt : ReadSentence(sentence);
    if (aside) return Aside{aside->Scope, {begin + aside->At.Begin, begin + aside->At.End}};
    if (LeavesOpen(sentence)) return Aside{AsideScope::AboveElseBelow, {begin, end}};
  }
  return std::nullopt;
}

std::optional<TokenRange> ReadDraftSubject(Tokens line) {
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (HasUse(line[at], WordUse::Draft)) return TokenRange{at, at + 1};
  }
  return FindSaying(line, Saying::Postpones);
}

bool MakesCondition(Tokens line) {
  return std::ranges::any_of(line, [](const Token& token) {
    return HasUse(token, WordUse::Condition) && !IsPolite(token) && !IsWord(token, "instead");
  });
}

bool NamesUnits(Tokens words, const PlaceNames& names) {
  constexpr auto mails = std::to_array<std::string_view>(
      {"mail", "mails", "email", "message", "nachricht", "courriel", "correo", "mensaje",
       "messaggio", "mensagem", "bericht", "mejl", "besked", "post", "letter"});
  bool any = false;
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (IsOneOf(words[at], mails) || HasUse(words[at], WordUse::Orders, WordUse::SetsAside,
                                            WordUse::Elsewhere, WordUse::Correction)) {
      return false;
    }
    const bool isUnit = UnitTypeOf(words[at]) != 0 && words[at].Text.size() > 1;
    const bool isPlace =
        words[at].Capital && words[at].Text.size() > 3 && !names.At(words, at).empty();
    any = any || isUnit || isPlace;
  }
  return any;
}

bool IsReport(Tokens words) {
  constexpr std::array<std::string_view, 8> own{"i", "we", "my", "im", "ive", "id", "ill", "our"};
  bool tells = false;
  // "I hear Austria wants to".
  constexpr std::array<std::string_view, 7> hearing{"hear",  "heard", "bet",  "reckon",
                                                    "guess", "know",  "think"};
  const bool isHeard = words.size() > 1 && IsOneOf(words[1], hearing);
  for (const Token& token : words) {
    // "I wanted A Par - Pic" is the writer's own.
    if (!isHeard && std::ranges::find(own, token.Text) != own.end()) return false;
    tells = tells || HasUse(token, WordUse::Report);
  }
  return tells;
}

bool IsUnreal(Tokens words) {
  constexpr std::array<std::string_view, 24> past{
      "played", "tried",  "spielte", "jouais",   "was",     "were",  "had",      "tempted",
      "wish",   "wished", "wanted",  "intended", "planned", "would", "wouldnt",  "almost",
      "nearly", "wollte", "voulais", "volevo",   "queria",  "wilde", "chcialem", "originally"};
  constexpr std::array<std::string_view, 4> polite{"like", "please", "you", "grateful"};
  const auto has = [&](const auto& list) {
    return std::ranges::any_of(words, [&](const Token& token) {
      return std::ranges::find(list, token.Text) != list.end();
    });
  };
  return has(past) && !has(polite) && !MakesCondition(words);
}

bool IsOwnTitle(Tokens line) {
  // "My ally proposes:", "My predecessor's orders:".
  constexpr std::array<std::string_view, 36> others{
      "says",      "said",     "tells",   "told",     "proposes",    "wants",
      "wanted",    "asks",     "asked",   "claims",   "insists",     "thinks",
      "reckons",   "suggests", "demands", "sagt",     "sagte",       "propone",
      "zegt",      "siger",    "sager",   "mowi",     "ally",        "allies",
      "neighbour", "neighbor", "friend",  "opponent", "predecessor", "brother",
      "vorganger", "allie",    "aliado",  "alleato",  "verbundeter", "bondgenoot"};
  // "Agreed with my ally:".
  constexpr std::array<std::string_view, 12> agreed{
      "agreed",     "confirmed", "discussed",   "abgesprochen", "besprochen",    "acordado",
      "concordato", "combinado", "afgesproken", "aftalt",       "overenskommet", "uzgodnione"};
  const bool isAgreed =
      std::ranges::any_of(line, [&](const Token& token) { return IsOneOf(token, agreed); });
  const bool isOthers = !isAgreed && std::ranges::any_of(line, [&](const Token& token) {
    return std::ranges::find(others, token.Text) != others.end();
  });
  // In many words "here", "now" and the like say nothing.
  constexpr std::ptrdiff_t few = 8;
  const bool isBrief = std::ranges::count(line, TokenKind::Word, &Token::Kind) <= few;
  return !isOthers && std::ranges::any_of(line, [&](const Token& token) {
    return HasUse(token, WordUse::Orders, WordUse::Season) ||
           (HasUse(token, WordUse::Own) && (isBrief || token.Text.size() > 3));
  });
}

bool LeadsOn(Tokens line) {
  if (IsColon(line.back())) return false;
  const bool isOpen =
      std::ranges::any_of(
          line,
          [](const Token& token) { return HasUse(token, WordUse::Aside, WordUse::SetsAside); }) ||
      MakesCondition(line);
  const bool isExample =
      line.size() > 1 && IsA(line.back(), TokenKind::Dot) &&
      (IsWord(line[line.size() - 2], "g") || IsWord(line[line.size() - 2], "eg"));
  const bool isEnd = IsA(line.back(), TokenKind::Dot) || line.back().Text == "?";
  const bool isPolite = std::ranges::any_of(line, [](const Token& token) {
    return IsWord(token, "sorry") || IsWord(token, "hope") || IsWord(token, "late");
  });
  return isExample || (isOpen && !isEnd && !isPolite);
}

bool IsOffer(Tokens line) {
  if (IsShrug(line)) return true;
  return std::ranges::any_of(line,
                             [](const Token& token) { return HasUse(token, WordUse::Offer); });
}

std::optional<TokenRange> ReadReservation(Tokens line, bool isBehindOrders) {
  if (IsOffer(line)) return std::nullopt;
  const auto word = std::ranges::find(line, TokenKind::Word, &Token::Kind);
  const bool asks = std::ranges::find(line, "?", &Token::Text) != line.end();
  if (asks && isBehindOrders && !IsOfEverydayLife(line) && !AsksMaster(line) &&
      !AsksAfterHealth(line) && !AsksOfLife(line))
    return TokenRange{0, line.size()};
  if (word == line.end()) return std::nullopt;
  if (!HasUse(*word, WordUse::Reservation)) return std::nullopt;
  // "But" begins many a new paragraph; "or Pic" does not.
  constexpr std::ptrdiff_t few = 3;
  const bool isBrief =
      std::ranges::count(line, TokenKind::Word, &Token::Kind) <= few && !IsColon(line.back());
  if (!isBehindOrders && !isBrief && !HasUse(*word, WordUse::Condition)) return std::nullopt;
  const auto at = static_cast<std::size_t>(word - line.begin());
  return TokenRange{at, line.size()};
}

}  // namespace orb::exchange
