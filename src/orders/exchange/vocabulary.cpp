#include "orders/exchange/vocabulary.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace orb::exchange {
namespace {

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

struct UseWords {
  WordUse Use;
  std::string_view Words;  ///< separated by blanks
};

// A word may have several uses. Of those that are harmless next to an order (Mood, Purpose, Plain)
// each must be so next to all others: a word missing there costs somebody a glance, one too many an
// order that nobody meant.
constexpr std::array Uses{
    UseWords{WordUse::Filler,
             "both the my our an please pls plz will shall is are his her their unit units "
             "dislodged gives lends provides"},
    UseWords{WordUse::Condition,
             "if unless otherwise else or either maybe perhaps instead not dont never cancel "
             "except depending should could might may cancelled canceled provided when until "
             "ignore no wont option alternative alternatively draft proposal proposed suggest "
             "suggestion disregard forget scratch delete undo revoke assuming case old"},
    UseWords{WordUse::Aside, "previously formerly last next later tomorrow example eg previous"},
    UseWords{WordUse::SetsAside,
             "draft drafts example examples sample samples tentative provisional preliminary "
             "result results outcome outcomes report adjudication history idea ideas thoughts "
             "thinking hypothetical version previously yesterday yesterdays earlier considering "
             "possible possibly options scenario proposals suggestions suggested wrong invalid "
             "superseded obsolete outdated discarded dummy fake test tests probably unconfirmed "
             "pending tbc tbd withdrawn void vorige letzte entwurf beispiel brouillon exemple "
             "concept voorbeeld"},
    UseWords{WordUse::Heading,
             "orders order for from of the my our your here are is follow follows following "
             "these as below in and spring autumn fall winter summer season year turn phase game "
             "player power country moves move movement movements retreat retreats build builds "
             "building adjustment adjustments removal removals disband disbands final new set "
             "press submitted by revised updated gm this disbandments with remove removes "
             "removing disbanding destroys correction corrections corrected change changes "
             "update"},
    UseWords{
        WordUse::Correction,
        "correction corrections korrektur correzione correccion correctie correcao rectification "
        "rectificatif rattelse rettelse korekta poprawka errata erratum update updates revision "
        "amendment amendments edit instead"},
    UseWords{WordUse::Definite,
             "final new revised updated corrected changed amended actual real definitive latest"},
    UseWords{WordUse::Orders, "order orders move moves version set list"},
    UseWords{WordUse::Greeting,
             "hi hello hey dear greetings good morning evening howdy salut bonjour hallo ciao "
             "regards best cheers thanks thank yours sincerely bye kind thx gl warm cordially "
             "moin goodbye"},
    UseWords{WordUse::Mood,
             "thanks thank thx ty cheers regards greetings good luck gl hf glhf best danke bitte "
             "merci dank bedankt gracias grazie lol rofl haha hahaha hehe heh yay wow nice great "
             "cool fun sorry hi hello hey friend friends ally allies buddy mate dear everyone "
             "everybody guys folks gm"},
    UseWords{WordUse::Purpose,
             "bounce bounces bouncing standoff selfbounce cover covers covering guard guards "
             "protect protects block blocks blocking defend defends defence defense defensive "
             "guarding defending protecting supported selfstandoff against"},
    UseWords{WordUse::Plain,
             "better fine ok okay yes yep yeah you we us i am all hope hopefully it works "
             "fingers crossed of course obviously naturally fyi btw sure surely definitely "
             "certainly confirmed confirm confirming final agreed as discussed promised usual "
             "again still unchanged same corrected correction revised updated changed new safe "
             "safety self order orders and this that here in at from for with by"},
};

/// "s01", "f1901m", "1901", "1901s", "1st": letters about a number.
bool IsSeasonCode(std::string_view word) {
  const std::size_t first = word.find_first_of("0123456789");
  if (first > 1) return false;
  const std::size_t end = std::min(word.find_first_not_of("0123456789", first), word.size());
  return word.size() - end <= 2;
}

using Meanings = std::unordered_map<std::string_view, WordMeaning>;

template <class Take>
void ForEachWord(std::string_view words, Take take) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    take(words.substr(0, end));
    words.remove_prefix(std::min(end + 1, words.size()));
  }
}

Meanings AllMeanings() {
  Meanings meanings;
  for (const VerbWords& row : Verbs)
    ForEachWord(row.Words, [&](std::string_view word) { meanings[word].Does = row.Meaning; });
  for (const UseWords& row : Uses) {
    ForEachWord(row.Words, [&](std::string_view word) {
      meanings[word].Uses |= static_cast<unsigned>(row.Use);
    });
  }
  for (const std::string_view word : {"a", "army", "armies"})
    meanings[word].UnitType = 'A';
  for (const std::string_view word : {"f", "fleet", "fleets"})
    meanings[word].UnitType = 'F';
  return meanings;
}

}  // namespace

WordMeaning MeaningOf(std::string_view word) {
  static const Meanings meanings = AllMeanings();
  const auto found = meanings.find(word);
  WordMeaning meaning = found == meanings.end() ? WordMeaning() : found->second;
  if (IsSeasonCode(word)) meaning.Uses |= static_cast<unsigned>(WordUse::Heading);
  return meaning;
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

}  // namespace orb::exchange
