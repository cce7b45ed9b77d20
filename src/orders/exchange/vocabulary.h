#pragma once

#include "orders/exchange/words.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orb::exchange {

/// What an order says of its unit.
enum class Verb : std::uint8_t {
  None,
  Move,
  Hold,
  Support,
  Convoy,
  Retreat,
  Disband,
  Build,
  Waive
};

/// The verb of a token: a dash or arrow moves; None when it is no verb.
Verb VerbOf(const Token& token);

/// "A" or "F" for a word that is a type of unit, else 0.
char UnitTypeOf(const Token& token);

/// A power, and the token behind its name.
struct PowerName {
  int Power = 0;  ///< 1..7, 0: none
  std::size_t Next = 0;
};

/// The power named at this token: by name, abbreviation, people, with or without "the".
PowerName PowerAt(Tokens tokens, std::size_t at);

/// The letter of a coast: n, s, e or w for "nc", "north" and their like, else 0.
char CoastLetter(std::string_view word);

/// Words that say nothing in an order: "the", "my", "please".
bool IsFiller(const Token& token);

/// Words by which an order depends on something or is taken back: "if", "or", "not".
bool IsCondition(const Token& token);

/// Words that, before an order, tell that it is not for now: "last turn", "for example".
bool IsAside(const Token& token);

/// Words of headings: "orders", "for", "spring", numbers, "s1901m".
bool IsHeadingWord(const Token& token);

/// The first words of greetings and of closings.
bool IsGreeting(const Token& token);

}  // namespace orb::exchange
