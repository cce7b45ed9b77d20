#include "orders/exchange/sayings.h"

#include "orders/exchange/saying_phrases.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orb::exchange {
namespace {

/// Of a word of a phrase that only tells how the word begins, the letters by which it is found.
constexpr std::size_t StemLength = 4;

bool IsStem(std::string_view word) {
  return word.ends_with('*');
}

bool Matches(const Token& token, std::string_view word) {
  if (word == ".") return IsA(token, TokenKind::Dot);
  if (!IsStem(word)) return IsWord(token, word);
  word.remove_suffix(1);
  return IsA(token, TokenKind::Word) && std::string_view(token.Text).starts_with(word);
}

struct Phrase {
  Saying Says;
  std::vector<std::string_view> Words;
  bool IsAll = false;  ///< no other words stand in the line
};

/// All phrases by their first word, or by the first letters of a stem.
using PhraseTable = std::unordered_map<std::string_view, std::vector<Phrase>>;

PhraseTable AllPhrases(bool areStems) {
  PhraseTable table;
  for (const SayingPhrases& row : AllSayingPhrases()) {
    for (const std::string_view phrase : Parts(row.Phrases, '|')) {
      const bool isAll = phrase.starts_with('=');
      std::vector<std::string_view> words = Parts(phrase.substr(isAll ? 1 : 0), ' ');
      const std::string_view first = words[0];
      if (IsStem(first) != areStems) continue;
      table[areStems ? first.substr(0, StemLength) : first].push_back(
          {row.Says, std::move(words), isAll});
    }
  }
  return table;
}

std::size_t CountWords(Tokens tokens) {
  return static_cast<std::size_t>(std::ranges::count(tokens, TokenKind::Word, &Token::Kind));
}

/// Phrases by their first words, and those by their first letters.
const std::array<PhraseTable, 2>& Tables() {
  static const std::array tables{AllPhrases(false), AllPhrases(true)};
  return tables;
}

/// Calls with each phrase that may begin with a word.
template <class Use>
void ForPhrasesAt(std::string_view word, const Use& use) {
  static const auto& tables = Tables();
  const std::array keys{word, word.substr(0, StemLength)};
  for (std::size_t i = 0; i < keys.size(); ++i) {
    // No stem is shorter than its key.
    if (i > 0 && word.size() < StemLength) break;
    const auto found = tables[i].find(keys[i]);
    if (found == tables[i].end()) continue;
    for (const Phrase& phrase : found->second)
      use(phrase);
  }
}

unsigned Bit(Saying saying) {
  return 1U << static_cast<unsigned>(saying);
}

/// The length of the phrase that says so at a token, or 0.
std::size_t LengthAt(Tokens tokens, std::size_t at, Saying saying) {
  std::size_t length = 0;
  ForPhrasesAt(tokens[at].Text, [&](const Phrase& phrase) {
    if (length > 0 || phrase.Says != saying || phrase.Words.size() > tokens.size() - at) return;
    const bool isHere = std::equal(
        phrase.Words.begin(), phrase.Words.end(), tokens.begin() + static_cast<std::ptrdiff_t>(at),
        [](std::string_view expected, const Token& token) { return Matches(token, expected); });
    // The words of a long line are counted last: that takes longest.
    if (isHere && (!phrase.IsAll || CountWords(tokens) == phrase.Words.size()))
      length = phrase.Words.size();
  });
  return length;
}

}  // namespace

unsigned SayingsBeginningWith(std::string_view word) {
  unsigned sayings = 0;
  ForPhrasesAt(word, [&](const Phrase& phrase) { sayings |= Bit(phrase.Says); });
  return sayings;
}

std::optional<TokenRange> FindSaying(Tokens tokens, Saying saying) {
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (tokens[at].Kind != TokenKind::Word || !MayBegin(tokens[at], saying)) continue;
    if (const std::size_t length = LengthAt(tokens, at, saying); length > 0)
      return TokenRange{at, at + length};
  }
  return std::nullopt;
}

}  // namespace orb::exchange
