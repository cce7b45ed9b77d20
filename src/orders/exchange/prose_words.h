#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// What a word is for in clauses of prose. Each value is a bit.
enum class ProseUse : unsigned {
  Lead = 0x1,       ///< stands before a clause and adds nothing: "and", "so"
  Adverb = 0x2,     ///< adds nothing to an order: "also", "quietly"
  Pronoun = 0x4,    ///< a unit that was named: "it goes"
  Object = 0x8,     ///< an order that was named: "supports that"
  Deed = 0x10,      ///< the same behind an article: "the landing"
  Troop = 0x20,     ///< an army: "soldiers"
  Ship = 0x40,      ///< a fleet: "boats"
  Copula = 0x80,    ///< before a participle: "is", "to be"
  Helped = 0x100,   ///< "supported" by somebody
  Carried = 0x200,  ///< "convoyed" by somebody
  Agent = 0x400,    ///< "by" in such clauses
  With = 0x800,     ///< "with" somebody's help
  Of = 0x1000,      ///< before who helps: "from", "of"
  Please = 0x2000,  ///< makes a question a wish
  Idiom = 0x4000    ///< begins words that together add nothing: "for now"
};

/// What a word in small letters is for: bits of ProseUse.
unsigned ProseUsesOf(std::string_view word);

/// The words that add nothing together, each a row of words that begins with the given one.
std::span<const std::vector<std::string_view>> IdiomsBeginningWith(std::string_view word);

}  // namespace orb::exchange
