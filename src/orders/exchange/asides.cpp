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
  Revokes,    ///< takes back those above
  Postpones,  ///< puts them off, or leaves them open
  Titles,     ///< sets aside those below, without a colon
  Corrects    ///< says that those below hold rather than those above
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
        "revoke|strike that|were examples|was wrong|were wrong"},
    Row{Kind::Postpones,
        "not process|dont process|not use|dont use|not enter|dont enter|not file|"
        "dont file|not submit|dont submit|not final|arent final|isnt final|not yet|"
        "not my final|not the final|wait for my|wait for the final|wait for final|"
        "wait until|hold off|will follow|orders to follow|tentative|tentatively|"
        "provisional|provisionally|preliminary|pending|unconfirmed|tbc|tbd|"
        "be confirmed|may change|might change|could change|still thinking|a draft|"
        "placeholder|placeholders|if you agree|what do you think|what you think|"
        "an example|just examples"},
    Row{Kind::Titles,
        "draft|drafts|example|examples|sample|samples|proposal|proposals|suggestion|"
        "suggestions|results|last turn|last season|last year|previous turn|"
        "previous season|previous orders|old version|old orders|last moves"},
    Row{Kind::Corrects,
        "changed my mind|change my mind|change of mind|change of plan|change of plans|"
        "change of heart|scrap that|scratch that|forget that|strike that|"
        "final version|these are final|these are my final|i mean|i meant|make that|"
        "should be|should read|should have been|use these|use this instead|"
        "these instead|this instead|replaces|supersedes|replace my|replace the|"
        "in place of|instead of|ignore my previous|ignore the previous|ignore my last|"
        "ignore my earlier|ignore the above|disregard my|disregard the|one correction|"
        "small correction|quick correction|a correction|slight correction|one change|"
        "small change|slight change|with one change"},
};

struct Phrase {
  Kind Says;
  std::vector<std::string_view> Words;
};

std::vector<std::string_view> Cut(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(end + 1)) {
    end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
  }
  return parts;
}

/// All phrases by their first word.
using PhraseTable = std::unordered_map<std::string_view, std::vector<Phrase>>;

PhraseTable AllPhrases() {
  PhraseTable table;
  for (const Row& row : Rows) {
    for (const std::string_view phrase : Cut(row.Phrases, '|')) {
      std::vector<std::string_view> words = Cut(phrase, ' ');
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

bool SetsAside(const Token& token) {
  return HasUse(token, WordUse::SetsAside, WordUse::Condition, WordUse::Aside);
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
    if (HasUse(title[at], WordUse::Correction) && (hasColon || at == 0)) return true;
    const bool isOrders = at + 1 < title.size() && HasUse(title[at], WordUse::Definite) &&
                          HasUse(title[at + 1], WordUse::Orders);
    const bool isOwn = at > 0 && (IsWord(title[at - 1], "my") || IsWord(title[at - 1], "our") ||
                                  IsWord(title[at - 1], "the"));
    if (isOrders && (hasColon || isOwn || title.size() == 2)) return true;
  }
  return false;
}

}  // namespace

std::optional<Aside> ReadAside(Tokens line) {
  const auto words = std::ranges::count(line, TokenKind::Word, &Token::Kind);
  if (words == 0) return std::nullopt;
  if (IsColon(line.back())) {
    const auto set = std::ranges::find_if(line, SetsAside);
    if (set == line.end()) return std::nullopt;
    const auto at = static_cast<std::size_t>(set - line.begin());
    return Aside{AsideScope::Below, {at, at + 1}};
  }
  if (const auto at = FindPhrase(line, Kind::Revokes)) return Aside{AsideScope::Above, *at};
  if (const auto at = FindPhrase(line, Kind::Postpones))
    return Aside{AsideScope::AboveElseBelow, *at};
  constexpr std::ptrdiff_t longestTitle = 4;
  const auto title = words <= longestTitle ? FindPhrase(line, Kind::Titles) : std::nullopt;
  return title ? std::optional(Aside{AsideScope::Below, *title}) : std::nullopt;
}

bool Corrects(Tokens line) {
  if (IsTitleOfCorrection(line)) return true;
  const auto phrase = FindPhrase(line, Kind::Corrects);
  const bool isAsked = std::ranges::find(line, "?", &Token::Text) != line.end();
  return phrase && !isAsked && !IsOpen(line.first(phrase->Begin));
}

}  // namespace orb::exchange
