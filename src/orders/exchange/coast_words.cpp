#include "orders/exchange/vocabulary.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <unordered_map>

namespace orb::exchange {
namespace {

struct CoastWords {
  char Letter;
  std::string_view English;
  std::string_view Others;  ///< in other languages, separated by blanks
};

constexpr std::array Coasts{
    CoastWords{'n', "north",
               "cn nord norte noord norra norr nordre nk nordkuste nordkueste noordkust nordkust "
               "nordkusten pln nordkyst nordkysten polnocne polnoc pn"},
    CoastWords{'s', "south",
               "cs sud sur sul zuid sodra soder sondre syd sk zk sudkuste suedkueste zuidkust "
               "sydkust pld sydkusten sydkyst sydkysten sorkyst sorkysten poludniowe poludnie pd"},
    CoastWords{'e', "east",
               "ce est este oost ost ostra ostkuste ostkueste oostkust ostkusten ostkyst "
               "ostkysten wschodnie wschod"},
    CoastWords{'w', "west", ""}};

using Letters = std::unordered_map<std::string, char>;

Letters AllLetters() {
  Letters letters;
  for (const CoastWords& coast : Coasts) {
    const std::string letter(1, coast.Letter);
    const std::string name(coast.English);
    for (const std::string& word : {letter, letter + "c", letter + "cst", name, name + "ern"})
      letters[word] = coast.Letter;
    for (const std::string_view word : Parts(coast.Others, ' '))
      letters[std::string(word)] = coast.Letter;
  }
  return letters;
}

}  // namespace

bool IsCoastNoun(std::string_view word) {
  constexpr std::array<std::string_view, 13> nouns{"coast",  "cst",      "costa", "cote",   "kuste",
                                                   "kust",   "kusten",   "kyst",  "kysten", "cost",
                                                   "kueste", "wybrzeze", "wyb"};
  return std::ranges::find(nouns, word) != nouns.end();
}

char CoastLetter(std::string_view word) {
  static const Letters letters = AllLetters();
  // Longer ones are none, whatever they are.
  constexpr std::size_t longest = 12;
  if (word.size() > longest) return 0;
  const auto found = letters.find(std::string(word));
  return found == letters.end() ? '\0' : found->second;
}

}  // namespace orb::exchange
