#include "orders/exchange/prose_words.h"

#include "orders/exchange/vocabulary.h"

#include <array>
#include <unordered_map>

namespace orb::exchange {
namespace {

struct Row {
  ProseUse Use;
  std::string_view Words;  ///< separated by blanks
};

// In the languages of the verbs, where they differ from English.
constexpr std::array ProseRows{
    Row{ProseUse::Lead,
        "o os de den der das het la le el os att at dat dass "
        "lat lad laat lass deja lascia deixa niech and so then also that while now finally first "
        "ok okay well let lets gonna und "
        "och og et dann puis que che whilst but mais aber ma pero"},
    Row{ProseUse::Adverb,
        "also too again just simply still then now directly straight quickly quietly "
        "both together likewise meanwhile there forthwith auch aussi ook anche tambien "
        "obviously naturally however therefore boldly gladly bravely"},
    Row{ProseUse::Pronoun,
        "it she he they that which this who er sie es il elle ella hij ze hun han den "
        "esso"},
    Row{ProseUse::Object, "it that this him them her ihn dies lo hem den ham dem"},
    Row{ProseUse::Deed,
        "move attack advance landing assault angriff attaque attacco ataque aanval "
        "sbarco desembarco debarquement landung"},
    Row{ProseUse::Troop,
        "soldiers troops garrison infantry lads men boys division regiment jungs manner garcons "
        "gars "
        "hombres chicos ragazzi uomini rapazes homens mannen jongens "
        " soldaten truppen troupes tropas regiments"},
    Row{ProseUse::Ship,
        "boats ships navy flotilla armada squadron boat marine schiffe navires barcos schepen "
        "navi"},
    Row{ProseUse::Copula,
        "is are be being gets wird werden est sera viene es wordt bliver to must shall "
        "will"},
    Row{ProseUse::Helped,
        "supported backed helped assisted unterstutzt soutenu soutenue appuye appuyee "
        "sostenuta appoggiata supportata apoyado apoyada apoiado gesteund ondersteund "
        "stottet stodd aided"},
    Row{ProseUse::Carried,
        "convoyed ferried carried transported shipped konvoiert convoye convoyee "
        "trasportata convogliata taken escorted geconvoyeerd"},
    Row{ProseUse::Agent, "by von par da dal dalla por pelo pela door av af via durch"},
    Row{ProseUse::With, "with mit avec con com met med"},
    Row{ProseUse::Of,
        "from of by von de du do da dal dalla di van fra fran av af aus in up help the"},
    Row{ProseUse::Please, "please bitte pls plz kindly"}};

/// Parted by "|"; none of their words alone says as little.
constexpr std::string_view Idioms =
    "for now|at once|as well|this turn|this season|as usual|of course|"
    "for the moment|in good order|behind them|behind it|as before|this time|"
    "as agreed|as planned|as discussed|as promised|quella di|quello di|celle de|"
    "celui de|the one in|the one from|the one at|in support|do nothing but";

using IdiomTable = std::unordered_map<std::string_view, std::vector<std::vector<std::string_view>>>;

const IdiomTable& AllIdioms() {
  static const IdiomTable table = [] {
    IdiomTable all;
    for (const std::string_view idiom : Parts(Idioms, '|')) {
      auto words = Parts(idiom, ' ');
      const std::string_view first = words[0];
      all[first].push_back(std::move(words));
    }
    return all;
  }();
  return table;
}

}  // namespace

unsigned ProseUsesOf(std::string_view word) {
  static const auto table = [] {
    std::unordered_map<std::string_view, unsigned> all;
    for (const Row& row : ProseRows) {
      for (const std::string_view each : Parts(row.Words, ' '))
        all[each] |= static_cast<unsigned>(row.Use);
    }
    for (const auto& [first, idioms] : AllIdioms())
      all[first] |= static_cast<unsigned>(ProseUse::Idiom);
    return all;
  }();
  const auto found = table.find(word);
  return found == table.end() ? 0 : found->second;
}

std::span<const std::vector<std::string_view>> IdiomsBeginningWith(std::string_view word) {
  const auto found = AllIdioms().find(word);
  if (found == AllIdioms().end()) return {};
  return found->second;
}

}  // namespace orb::exchange
