#include "orders/exchange/power_names.h"

#include "model/country.h"
#include "text/strings.h"

#include <algorithm>
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
  std::string_view Names;  ///< parted by "|"
};

/// What powers and their people are called besides the names and abbreviations in the game.
constexpr std::array Nicknames{
    PowerWords{1,
               "english|anglii|great britain|britain|british|brits|uk|gb|angleterre|inglaterra|"
               "inghilterra|engeland|anglia|storbritannien|storbritannia|grossbritannien|"
               "grosbritannien|englander|engels|anglais|ingles|inglese|englisch|englanti|"
               "anglie|angol|britannien|ingiltere|angliya|englannin|engelsk|engelska|"
               "englische|engelse"},
    PowerWords{2,
               "french|francji|frankreich|francia|frankrijk|frankrike|frankrig|francja|franca|"
               "francais|franzosen|franzosisch|frances|francese|ranska|francie|"
               "franciaorszag|fransa|frantsiya|gallia|fransk|franska|franse|francesa|"
               "francaise|franzose|fransman"},
    PowerWords{3,
               "german|niemiec|germans|deutschland|allemagne|alemania|germania|duitsland|"
               "tyskland|niemcy|alemanha|allemand|aleman|alemao|tedesco|duits|tysk|"
               "deutsch|deutsche|deutscher|saksa|nemecko|nemetorszag|almanya|germaniya|"
               "tyska|tyske|duitse|tedesca|alemana|alema|allemande"},
    PowerWords{4,
               "russian|rosji|russians|russland|rusland|russie|rusia|ryssland|rosja|russe|"
               "russo|ruso|rysk|russisch|venaja|rusko|oroszorszag|rusya|rossiya|rosia|"
               "ryska|russisk|russiske|russische|rusa|russa"},
    PowerWords{5,
               "turkish|turcji|turks|ottoman empire|ottoman|ottomans|turkei|tuerkei|turquie|"
               "turquia|turchia|turkije|turkiet|tyrkiet|tyrkia|turcja|turc|turco|"
               "turkisch|turkki|turecko|torokorszag|turkiye|turtsiya|tourkia|tyrkisk|"
               "tyrkiske|turkiska|turkse|turque|turca|turke"},
    PowerWords{6,
               "austria|austrian|austro|austro hungarian|austro hungary|austrian hungarian|"
               "austrians|ah|osterreich|oesterreich|autriche|oostenrijk|osterrike|ostrig|"
               "osterrig|austrias|osterreich ungarn|autriche hongrie|oostenrijk hongarije|"
               "austro wegry|autrichien|austriaco|itavalta|rakousko|ausztria|avusturya|"
               "avstriya|afstria|rakousko uhersko|austria hungary|osterreichisch|"
               "oostenrijkse|osterrikisk|ostrigske|autrichienne|austriaca|austria hungria|"
               "austria ungheria|austro ungheria|osterrike ungern|ostrig ungarn|"
               "avstro vengriya|ausztria magyarorszag|itavalta unkari|osterreicher"},
    PowerWords{7,
               "italian|wloch|italians|italien|italie|italia|wlochy|italiaans|italienisch|"
               "italiano|italienne|italiaanse|olaszorszag|italya|italiya|italska|"
               "italiensk|italienske|italiana|italiener|itaalia"},
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
    std::string words = text::LowerCase(name);
    std::ranges::replace(words, '-', ' ');
    for (const std::string_view word : Parts(words, ' '))
      spelled.Words.emplace_back(word);
    const std::string first = spelled.Words[0];
    names.emplace(first, std::move(spelled));
  };
  const model::CountryTable countries = model::FixedCountries();
  for (int i = 1; i <= countries.Count(); ++i) {
    add(i, countries[i].Abbreviation);
    add(i, countries[i].Name);
  }
  for (const PowerWords& row : Nicknames) {
    for (const std::string_view name : Parts(row.Names, '|'))
      add(row.Power, name);
  }
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

const PowerNames& Names() {
  static const PowerNames names = AllPowerNames();
  return names;
}

}  // namespace

bool MayBeginPower(std::string_view word) {
  return Names().contains(std::string(word));
}

PowerName PowerAt(Tokens tokens, std::size_t at) {
  if (at < tokens.size() && IsWord(tokens[at], "the")) ++at;
  PowerName best;
  if (at >= tokens.size() || !tokens[at].Means.BeginsPower) return best;
  const auto [first, last] = Names().equal_range(tokens[at].Text);
  for (auto name = first; name != last; ++name) {
    const std::size_t length = Spelled(tokens, at, name->second.Words);
    // The longest name counts: "Austro-Hungarian", not "Austro".
    if (length > 0 && at + length > best.Next) best = {name->second.Power, at + length};
  }
  return best;
}

int PowerIn(Tokens tokens) {
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (const int power = PowerAt(tokens, at).Power; power != 0) return power;
  }
  return 0;
}

}  // namespace orb::exchange
