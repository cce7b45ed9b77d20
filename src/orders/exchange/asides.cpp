#include "orders/exchange/asides.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orb::exchange {
namespace {

/// What a phrase in a line without orders says of orders.
enum class Kind : std::uint8_t {
  Revokes,     ///< takes back those above
  Postpones,   ///< puts them off, or leaves them open
  Titles,      ///< sets aside those below, without a colon
  Corrects,    ///< says that those below hold rather than those above
  Shrugs,      ///< leaves what may happen to itself: "if he minds, tough luck"
  Reconsiders  ///< before an order, or alone: the one above may be meant no longer
};

struct Row {
  Kind Says;
  std::string_view Phrases;  ///< separated by "|", in small letters
};

constexpr std::array Rows{
    Row{Kind::Revokes,
        "kidding|joking|a joke|changed my mind|ignore|disregard|cancel|cancelled|"
        "canceled|scrap|scratch that|forget that|forget these|forget those|forget the|"
        "forget my|forget what|forget about|nevermind|never mind|withdrawn|i withdraw|"
        "revoke|strike that|were examples|was wrong|were wrong|is void|are void|"
        "no longer valid|not valid|no longer stand|do not stand|forget it|take back|"
        "took back|takes back|taking back|was a joke|were a joke|april fool|was drunk|"
        "ungultig|nicht mehr gultig|vergiss|annule|annuler|annulla|annulliere|anular|"
        "olvida|vergeet|glem|strunta i|changed our minds|forget everything|forget all"},
    Row{Kind::Postpones,
        "not process|dont process|not use|dont use|not enter|dont enter|not file|"
        "dont file|not submit|dont submit|not final|arent final|isnt final|not yet|"
        "not my final|not the final|wait for my|wait for the final|wait for final|"
        "wait until|hold off|will follow|orders to follow|tentative|tentatively|"
        "provisional|provisionally|preliminary|pending|unconfirmed|tbc|tbd|"
        "be confirmed|may change|might change|could change|still thinking|a draft|"
        "placeholder|placeholders|if you agree|what do you think|what you think|"
        "an example|just examples|not my|not mine|not real|not for real|not binding|"
        "not the real|not for now|not ready|not sure|not decided|not decide|not these|"
        "not count|dont count|doesnt count|not resolve|dont resolve|not orders|"
        "isnt decided|havent decided|undecided|something like|thinking about it|"
        "think about it|let me think|still deciding|sleep on it|back to you|"
        "will confirm|confirm later|subject to|check with|ask him|ask her|call him|"
        "call her|noch nicht|nicht werten|nicht endgultig|vorlaufig|provisoire|"
        "pas encore|non ancora|provvisori|provvisorio|todavia no|aun no|nog niet|"
        "voorlopig|inte klart|inte annu|preliminart|ikke endelig|forelobig|"
        "jeszcze nie|ainda nao|to follow|will send my|will send the|more later|"
        "double check|let me check|dont have time to decide|might still|may still|"
        "could still|look like this|looks like this|looks like|look like|would look|"
        "said something"},
    Row{Kind::Titles,
        "draft|drafts|example|examples|sample|samples|proposal|proposals|suggestion|"
        "suggestions|results|last turn|last season|last year|previous turn|"
        "previous season|previous orders|old version|old orders|last moves|"
        "letzter zug|letzte runde|dernier tour|ultimo turno|vorige beurt"},
    Row{Kind::Corrects,
        "changed my mind|change my mind|change of mind|change of plan|change of plans|"
        "change of heart|scrap that|scratch that|forget that|strike that|"
        "final version|these are final|these are my final|i mean|i meant|make that|"
        "should be|should read|should have been|use these|use this instead|"
        "these instead|this instead|ignore my previous|ignore the previous|"
        "ignore my last|ignore my earlier|ignore the above|disregard my|disregard the|"
        "one correction|small correction|quick correction|a correction|"
        "slight correction|one change|small change|slight change|with one change|"
        "habe mich vertan|meinung geandert|je me suis trompe|me equivoque|"
        "mi sono sbagliato|ho cambiato idea|change d avis|changement d avis|"
        "verbeterde versie|angrat mig|ombestemt|zmiana zdania|scratch that last one|"
        "scrap that one"},
    Row{Kind::Shrugs,
        "no hard feelings|lump it|tough luck|serves him right|nicht bose|selber schuld|"
        "pech gehabt|tant pis|peor para|peggio per|pior para"},
    Row{Kind::Reconsiders,
        "no|nope|nah|nay|wait|hang "
        "on|actually|rather|hmm|hm|oops|whoops|ooops|sorry|apologies|better|"
        "on reflection|second thought|second thoughts|not that|i mean|i meant|make that|"
        "scratch that|strike that|scrap that|correction|my mistake|my bad|instead|"
        "nein|nee|doch|lieber|besser|quatsch|moment|stopp|verzeihung|korrektur|"
        "non|plutot|en fait|enfin|pardon|attends|attendez|mieux|erreur|"
        "anzi|aspetta|aspetti|meglio|invece|scusa|scusate|mejor|espera|perdon|en realidad|"
        "nao|alias|melhor|na verdade|afinal|desculpa|digo|"
        "wacht|liever|toch|eigenlijk|foutje|"
        "nej|nei|vent|hellere|heller|alligevel|egentlig|egentligen|vanta|hellre|snarare|undskyld|"
        "unnskyld|forlat|nie|czekaj|raczej|jednak|wlasciwie|przepraszam"},
};

struct Phrase {
  Kind Says;
  std::vector<std::string_view> Words;
};

/// All phrases by their first word.
using PhraseTable = std::unordered_map<std::string_view, std::vector<Phrase>>;

PhraseTable AllPhrases() {
  PhraseTable table;
  for (const Row& row : Rows) {
    for (const std::string_view phrase : Parts(row.Phrases, '|')) {
      std::vector<std::string_view> words = Parts(phrase, ' ');
      table[words[0]].push_back({row.Says, std::move(words)});
    }
  }
  return table;
}

/// Where the first phrase of a kind stands, word by word.
std::optional<TokenRange> FindPhrase(Tokens tokens, Kind kind) {
  static const PhraseTable table = AllPhrases();
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    const auto found = table.find(tokens[at].Text);
    if (found == table.end() || tokens[at].Kind != TokenKind::Word) continue;
    for (const Phrase& phrase : found->second) {
      if (phrase.Says != kind || phrase.Words.size() > tokens.size() - at) continue;
      const bool isHere =
          std::equal(phrase.Words.begin(), phrase.Words.end(),
                     tokens.begin() + static_cast<std::ptrdiff_t>(at),
                     [](std::string_view word, const Token& token) { return IsWord(token, word); });
      if (isHere) return TokenRange{at, at + phrase.Words.size()};
    }
  }
  return std::nullopt;
}

bool IsColon(const Token& token) {
  return token.Kind == TokenKind::Colon;
}

/// Whether something is denied, asked or supposed: "these are not", "should I".
bool IsOpen(Tokens tokens) {
  return std::ranges::any_of(tokens, [](const Token& token) {
    return token.Text == "?" || (HasUse(token, WordUse::Condition) && !IsWord(token, "instead"));
  });
}

/// Whether a word stands in an address, "tom@games.example".
bool IsOfAddress(Tokens tokens, std::size_t at) {
  const auto joins = [&](std::size_t mark) {
    return tokens[mark].Text == "@" || (tokens[mark].Kind == TokenKind::Dot && tokens[mark].Glued);
  };
  return at > 0 && tokens[at].Glued && joins(at - 1);
}

/// What is behind the last full stop.
Tokens LastSentence(Tokens line) {
  for (std::size_t at = line.size() - 1; at > 0; --at) {
    if (IsA(line[at - 1], TokenKind::Dot) && !line[at].Glued) return line.subspan(at);
  }
  return line;
}

/// Words that often only are polite: "this should be all:".
bool IsPolite(const Token& token) {
  return IsWord(token, "should") || IsWord(token, "could") || IsWord(token, "no") ||
         IsWord(token, "not") || IsWord(token, "may");
}

/// What a line that ends in a colon sets aside: "Draft:", "If Germany agrees:", "Do NOT use
/// these:".
std::optional<Aside> ReadTitle(Tokens line) {
  const Tokens last = LastSentence(line);
  const std::size_t skipped = line.size() - last.size();
  if (skipped > 0) {
    const auto at = FindPhrase(line.first(skipped), Kind::Revokes);
    if (at) return Aside{AsideScope::Above, *at};
  }
  if (Corrects(last)) return std::nullopt;
  const auto below = [&](std::size_t begin, std::size_t end) {
    return Aside{AsideScope::Below, {skipped + begin, skipped + end}};
  };
  for (std::size_t at = 0; at < last.size(); ++at) {
    if (HasUse(last[at], WordUse::SetsAside, WordUse::Aside) && !IsOfAddress(last, at)) {
      return below(at, at + 1);
    }
  }
  if (const auto at = FindPhrase(last, Kind::Postpones)) return below(at->Begin, at->End);
  // Behind its first words "if" is one of another thought: "here you go, hope you see if it fits:".
  constexpr std::size_t few = 5;
  const bool isShort = std::ranges::count(last, TokenKind::Word, &Token::Kind) <= 6;
  for (std::size_t at = 0; at < std::min(few, last.size()); ++at) {
    const bool isForPublic = at + 1 < last.size() && IsWord(last[at + 1], "for");
    const bool sets =
        HasUse(last[at], WordUse::Condition) && (at == 0 || isShort || !IsPolite(last[at]));
    if (sets && !isForPublic && !IsWord(last[at], "instead")) return below(at, at + 1);
  }
  return std::nullopt;
}

/// Whether words before a colon, or at the beginning of a line, name a correction: "Correction:",
/// "My final orders:", "A small update to my moves:".
bool IsTitleOfCorrection(Tokens line) {
  constexpr std::ptrdiff_t longest = 8;
  const auto colon = std::ranges::find_if(line, IsColon);
  const auto end = static_cast<std::size_t>(colon - line.begin());
  const Tokens title = line.first(end);
  const bool hasColon = colon != line.end();
  if (std::ranges::count(title, TokenKind::Word, &Token::Kind) > longest || IsOpen(title)) {
    return false;
  }
  for (std::size_t at = 0; at < title.size(); ++at) {
    // "Correction - A Par - Pic" does without a colon.
    const bool isOf = at + 1 < title.size() && IsWord(title[at + 1], "of");
    if (HasUse(title[at], WordUse::Correction) && !isOf && (hasColon || at == 0)) return true;
    const bool isOrders = at + 1 < title.size() && HasUse(title[at], WordUse::Definite) &&
                          HasUse(title[at + 1], WordUse::Orders);
    const bool isOwn = at > 0 && (IsWord(title[at - 1], "my") || IsWord(title[at - 1], "our") ||
                                  IsWord(title[at - 1], "the"));
    if (isOrders && (hasColon || isOwn || title.size() == 2)) return true;
  }
  return false;
}

/// Whether a line leaves what others may do to itself, and orders nothing in return.
bool IsShrug(Tokens line) {
  const bool orders = std::ranges::any_of(line, [](const Token& token) {
    const Verb verb = VerbOf(token);
    return (verb != Verb::None && verb != Verb::Move) || IsWord(token, "dont") ||
           IsWord(token, "but") || IsWord(token, "unless") || IsWord(token, "only") ||
           IsWord(token, "instead") || HasUse(token, WordUse::Orders);
  });
  return !orders && FindPhrase(line, Kind::Shrugs);
}

}  // namespace

std::optional<Aside> ReadAside(Tokens line) {
  const auto words = std::ranges::count(line, TokenKind::Word, &Token::Kind);
  if (words == 0) return std::nullopt;
  if (IsColon(line.back())) return ReadTitle(line);
  if (const auto at = FindPhrase(line, Kind::Revokes)) return Aside{AsideScope::Above, *at};
  if (const auto at = FindPhrase(line, Kind::Postpones))
    return Aside{AsideScope::AboveElseBelow, *at};
  constexpr std::ptrdiff_t longestTitle = 4;
  const auto title = words <= longestTitle ? FindPhrase(line, Kind::Titles) : std::nullopt;
  return title ? std::optional(Aside{AsideScope::Below, *title}) : std::nullopt;
}

std::optional<TokenRange> ReadDraftSubject(Tokens line) {
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (HasUse(line[at], WordUse::Draft)) return TokenRange{at, at + 1};
  }
  return FindPhrase(line, Kind::Postpones);
}

bool MakesCondition(Tokens line) {
  return std::ranges::any_of(line, [](const Token& token) {
    return HasUse(token, WordUse::Condition) && !IsPolite(token) && !IsWord(token, "instead");
  });
}

bool IsReport(Tokens words) {
  constexpr std::array<std::string_view, 8> own{"i", "we", "my", "im", "ive", "id", "ill", "our"};
  bool tells = false;
  for (const Token& token : words) {
    // "I wanted A Par - Pic" is the writer's own.
    if (std::ranges::find(own, token.Text) != own.end()) return false;
    tells = tells || HasUse(token, WordUse::Report);
  }
  return tells;
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
  if (asks && isBehindOrders) return TokenRange{0, line.size()};
  if (word == line.end()) return std::nullopt;
  if (!HasUse(*word, WordUse::Reservation)) return std::nullopt;
  // "But" begins many a new paragraph.
  if (!isBehindOrders && !HasUse(*word, WordUse::Condition)) return std::nullopt;
  const auto at = static_cast<std::size_t>(word - line.begin());
  return TokenRange{at, line.size()};
}

bool Reconsiders(Tokens words) {
  // Farther on such words belong to another thought.
  constexpr std::size_t few = 5;
  const bool isRemark = !words.empty() && IsA(words[0], TokenKind::Open);
  return !isRemark && FindPhrase(words.first(std::min(few, words.size())), Kind::Reconsiders);
}

std::optional<TokenRange> FindCorrection(Tokens words) {
  if (const auto at = FindPhrase(words, Kind::Corrects)) return at;
  for (std::size_t at = 0; at < words.size(); ++at) {
    const bool isOf = at + 1 < words.size() && IsWord(words[at + 1], "of");
    if (IsWord(words[at], "instead") && !isOf) return TokenRange{at, at + 1};
  }
  return std::nullopt;
}

bool Corrects(Tokens line) {
  if (line.empty()) return false;
  if (IsTitleOfCorrection(line) || IsTitleOfCorrection(LastSentence(line))) return true;
  const auto last = std::find_if(line.rbegin(), line.rend(), [](const Token& token) {
    return IsA(token, TokenKind::Word) && !HasUse(token, WordUse::Filler);
  });
  if (last != line.rend() && IsWord(*last, "instead") && !MakesCondition(line)) return true;
  const auto phrase = FindPhrase(line, Kind::Corrects);
  const bool isAsked = std::ranges::find(line, "?", &Token::Text) != line.end();
  return phrase && !isAsked && !IsOpen(line.first(phrase->Begin));
}

}  // namespace orb::exchange
