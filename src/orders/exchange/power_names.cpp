#include "orders/exchange/power_names.h"

#include "model/country.h"

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orb::exchange {
namespace {

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

}  // namespace

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

}  // namespace orb::exchange
