#include "orders/exchange/vocabulary.h"

#include "model/country.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orb::exchange {
namespace {

using Words = std::span<const std::string_view>;

bool IsIn(const Token& token, Words words) {
  return token.Kind == TokenKind::Word && std::ranges::find(words, token.Text) != words.end();
}

struct VerbWords {
  Verb Meaning;
  std::string_view Words;  ///< separated by blanks
};

// Words in small letters, as tokens have them. A word missing here makes an order unclear, which
// somebody will notice; a word too many may turn prose into an order.
constexpr std::array Verbs{
    VerbWords{Verb::Move,
              "to into m mv move moves moving attack attacks attacking go goes going advance "
              "advances march marches sail sails enter enters invade "
              "invades head heads heading proceed proceeds travel travels send"},
    VerbWords{Verb::Hold, "h hold holds holding hld stand stands stay stays remain remains"},
    VerbWords{Verb::Support, "s sup supp supports support supporting spt sprt su"},
    VerbWords{Verb::Convoy,
              "c cv cvy conv convoy convoys convoying transport transports carry carries"},
    VerbWords{Verb::Retreat, "r ret retr retreat retreats retreating withdraw withdraws"},
    VerbWords{Verb::Disband,
              "d dis disb disband disbands disbanded disbanding remove removes removed removing "
              "removal removals destroy destroys destroyed disbandment disbandments"},
    VerbWords{Verb::Build, "b bld build builds building raise raises"},
    VerbWords{Verb::Waive, "w waive waives waived waiving waiver"},
};

struct PowerWords {
  int Power;
  std::string_view Words;
};

/// What powers and their people are called besides the names and abbreviations in the game.
constexpr std::array Nicknames{
    PowerWords{1, "english"},
    PowerWords{1, "great britain"},
    PowerWords{1, "britain"},
    PowerWords{1, "british"},
    PowerWords{2, "french"},
    PowerWords{3, "german"},
    PowerWords{4, "russian"},
    PowerWords{5, "turkish"},
    PowerWords{5, "turks"},
    PowerWords{5, "ottoman empire"},
    PowerWords{5, "ottoman"},
    PowerWords{6, "austria"},
    PowerWords{6, "austrian"},
    PowerWords{6, "austro"},
    PowerWords{6, "austro hungarian"},
    PowerWords{6, "austro hungary"},
    PowerWords{6, "austrian hungarian"},
    PowerWords{7, "italian"},
    PowerWords{7, "italians"},
    PowerWords{1, "brits"},
    PowerWords{3, "germans"},
    PowerWords{4, "russians"},
    PowerWords{6, "austrians"},
    PowerWords{1, "uk"},
    PowerWords{1, "gb"},
    PowerWords{5, "ottomans"},
    PowerWords{6, "ah"},
};

constexpr std::array<std::string_view, 21> Fillers{
    "both", "the", "my",  "our",   "an",   "please", "pls",       "plz",   "will",  "shall",   "is",
    "are",  "his", "her", "their", "unit", "units",  "dislodged", "gives", "lends", "provides"};

constexpr std::array<std::string_view, 44> Conditions{
    "if",     "unless",    "otherwise", "else",     "or",          "either",
    "maybe",  "perhaps",   "instead",   "not",      "dont",        "never",
    "cancel", "except",    "depending", "should",   "could",       "might",
    "may",    "cancelled", "canceled",  "provided", "when",        "until",
    "ignore", "no",        "wont",      "option",   "alternative", "alternatively",
    "draft",  "proposal",  "proposed",  "suggest",  "suggestion",  "disregard",
    "forget", "scratch",   "delete",    "undo",     "revoke",      "assuming",
    "case",   "old"};

constexpr std::array<std::string_view, 9> Asides{
    "previously", "formerly", "last", "next", "later", "tomorrow", "example", "eg", "previous"};

constexpr std::array<std::string_view, 71> HeadingWords{
    "orders",     "order",       "for",          "from",        "of",        "the",      "my",
    "our",        "your",        "here",         "are",         "is",        "follow",   "follows",
    "following",  "these",       "as",           "below",       "in",        "and",      "spring",
    "autumn",     "fall",        "winter",       "summer",      "season",    "year",     "turn",
    "phase",      "game",        "player",       "power",       "country",   "moves",    "move",
    "movement",   "movements",   "retreat",      "retreats",    "build",     "builds",   "building",
    "adjustment", "adjustments", "removal",      "removals",    "disband",   "disbands", "final",
    "new",        "set",         "press",        "submitted",   "by",        "revised",  "updated",
    "gm",         "this",        "disbandments", "with",        "remove",    "removes",  "removing",
    "disbanding", "destroys",    "correction",   "corrections", "corrected", "change",   "changes",
    "update"};

constexpr std::array<std::string_view, 28> Greetings{
    "hi",      "hello",  "hey",    "dear",    "greetings", "good",      "morning",
    "evening", "howdy",  "salut",  "bonjour", "hallo",     "ciao",      "regards",
    "best",    "cheers", "thanks", "thank",   "yours",     "sincerely", "bye",
    "kind",    "thx",    "gl",     "warm",    "cordially", "moin",      "goodbye"};

/// "s01", "f1901m", "1901", "1901s", "1st": letters about a number.
bool IsSeasonCode(std::string_view word) {
  const std::size_t first = word.find_first_of("0123456789");
  if (first > 1) return false;
  const std::size_t end = std::min(word.find_first_not_of("0123456789", first), word.size());
  return word.size() - end <= 2;
}

struct SpelledPower {
  int Power;
  std::vector<std::string> Words;
};

/// All that powers are called, by the first words.
using PowerNames = std::unordered_multimap<std::string, SpelledPower>;

PowerNames AllPowerNames() {
  PowerNames names;
  const auto add = [&](int power, std::string_view name) {
    SpelledPower spelled{power, {}};
    for (const Token& token : CutTokens(name)) {
      if (token.Kind == TokenKind::Word) spelled.Words.push_back(token.Text);
    }
    const std::string first = spelled.Words[0];
    names.emplace(first, std::move(spelled));
  };
  const model::CountryTable countries = model::FixedCountries();
  for (int i = 1; i <= countries.Count(); ++i) {
    add(i, countries[i].Abbreviation);
    add(i, countries[i].Name);
  }
  for (const PowerWords& name : Nicknames)
    add(name.Power, name.Words);
  return names;
}

/// How many tokens from here spell the words, glued dashes between them passed over; 0: they do
/// not.
std::size_t Spelled(Tokens tokens, std::size_t at, const std::vector<std::string>& words) {
  std::size_t next = at;
  for (const std::string& word : words) {
    if (next > at && next + 1 < tokens.size() && IsA(tokens[next], TokenKind::Dash) &&
        tokens[next].Glued && tokens[next + 1].Glued) {
      ++next;
    }
    if (next == tokens.size() || !IsWord(tokens[next], word)) return 0;
    ++next;
  }
  return next - at;
}

std::unordered_map<std::string_view, Verb> AllVerbs() {
  std::unordered_map<std::string_view, Verb> verbs;
  for (const VerbWords& row : Verbs) {
    for (std::string_view rest = row.Words; !rest.empty();) {
      const std::size_t end = std::min(rest.find(' '), rest.size());
      verbs.emplace(rest.substr(0, end), row.Meaning);
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
  }
  return verbs;
}

}  // namespace

Verb VerbOf(const Token& token) {
  static const auto verbs = AllVerbs();
  if (token.Kind == TokenKind::Dash) return Verb::Move;
  if (token.Kind != TokenKind::Word) return Verb::None;
  const auto found = verbs.find(token.Text);
  return found == verbs.end() ? Verb::None : found->second;
}

char UnitTypeOf(const Token& token) {
  if (token.Kind != TokenKind::Word) return 0;
  const std::string& word = token.Text;
  if (word == "a" || word == "army" || word == "armies") return 'A';
  return word == "f" || word == "fleet" || word == "fleets" ? 'F' : '\0';
}

PowerName PowerAt(Tokens tokens, std::size_t at) {
  static const PowerNames names = AllPowerNames();
  if (at < tokens.size() && IsWord(tokens[at], "the")) ++at;
  PowerName best;
  if (at >= tokens.size()) return best;
  const auto [first, last] = names.equal_range(tokens[at].Text);
  for (auto name = first; name != last; ++name) {
    const std::size_t length = Spelled(tokens, at, name->second.Words);
    // The longest name counts: "Austro-Hungarian", not "Austro".
    if (length > 0 && at + length > best.Next) best = {name->second.Power, at + length};
  }
  return best;
}

char CoastLetter(std::string_view word) {
  constexpr std::string_view letters = "nsew";
  constexpr std::array<std::string_view, 4> names{"north", "south", "east", "west"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string_view letter = letters.substr(i, 1);
    const std::string_view rest = word.substr(std::min<std::size_t>(1, word.size()));
    if (word.starts_with(letter) && (rest.empty() || rest == "c" || rest == "cst"))
      return letter[0];
    if (word.starts_with(names[i]) &&
        (word.size() == names[i].size() || word.substr(names[i].size()) == "ern")) {
      return letter[0];
    }
  }
  return 0;
}

bool IsFiller(const Token& token) {
  return IsIn(token, Fillers);
}

bool IsCondition(const Token& token) {
  return IsIn(token, Conditions);
}

bool IsAside(const Token& token) {
  return IsIn(token, Asides);
}

bool IsHeadingWord(const Token& token) {
  return IsIn(token, HeadingWords) || IsNumber(token) ||
         (token.Kind == TokenKind::Word && IsSeasonCode(token.Text));
}

bool IsGreeting(const Token& token) {
  return IsIn(token, Greetings);
}

}  // namespace orb::exchange
