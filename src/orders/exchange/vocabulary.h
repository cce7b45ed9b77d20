#pragma once

#include "orders/exchange/prose_words.h"
#include "orders/exchange/signal_words.h"

#include <cstdint>
#include <string_view>
#include <vector>

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

/// What a word is for beside being a verb, a type or a name. Each value is a bit.
enum class WordUse : std::uint32_t {
  Filler = 1,       ///< says nothing in an order: "the", "my", "please"
  Condition = 2,    ///< an order depends on something or is taken back: "if", "or", "not"
  Aside = 4,        ///< tells, before an order, that it is not for now: "last" turn, "example"
  SetsAside = 8,    ///< of headings by which the orders below are not for now: "draft", "results"
  Heading = 0x10,   ///< "orders", "for", "spring", numbers, "s1901m"
  Greeting = 0x20,  ///< first words of greetings and of closings
  Mood = 0x40,      ///< harmless beside an order: thanks and moods, which may address a power
  Purpose = 0x80,   ///< harmless beside an order: what it is for, or who helps; it may name places
  Plain = 0x100,    ///< harmless beside an order: words around those; the order is as meant
  Correction = 0x200,    ///< of titles: what is below holds rather than what is above
  Definite = 0x400,      ///< "final", "new", before those of Orders
  Orders = 0x800,        ///< "orders", "moves", "version"
  Draft = 0x1000,        ///< of a mail's subject: its orders are not for now
  Reservation = 0x2000,  ///< begins a line about the orders above: "but", "or", "unless"
  Wish = 0x1'0000,       ///< before an order: "I would like to"
  Season = 0x2'0000,     ///< "spring"
  Elsewhere = 0x8'0000,  ///< of titles: what is below is of another time, or only a thought
  Own = 0x4'0000,        ///< of titles: what is below is the writer's, and for now
  Report = 0x8000,       ///< tells what somebody else says or wants
  Everyday = 0x10'0000,  ///< harmless in a remark beside an order: of players' everyday life
  Footer = 0x20'0000,    ///< of what firms have below their mails
  Plea = 0x40'0000,      ///< asks to be excused: "sorry"
  Offer = 0x4000         ///< of lines that offer help: "if anything is unclear"
};

/// What a word can mean wherever it stands.
struct WordMeaning {
  Verb Does = Verb::None;
  char UnitType = 0;         ///< 'A' or 'F', 0: none
  unsigned Uses = 0;         ///< bits of WordUse
  bool BeginsPower = false;  ///< whether it may begin the name of a power
  unsigned Prose = 0;        ///< bits of ProseUse
  unsigned Signals = 0;      ///< bits of Signal
  unsigned Topics = 0;       ///< TopicsOf
  unsigned Sayings = 0;      ///< which phrases it may begin: SayingsBeginningWith

  bool Has(WordUse use) const { return (Uses & static_cast<unsigned>(use)) != 0; }
  bool Has(ProseUse use) const { return (Prose & static_cast<unsigned>(use)) != 0; }
};

/// The meaning of a word in small letters.
WordMeaning MeaningOf(std::string_view word);

/// What stands between separators, in tables that hold several words in a text.
std::vector<std::string_view> Parts(std::string_view text, char separator);

/// The letter of a coast: n, s, e or w for "nc", "north" and their like, else 0.
char CoastLetter(std::string_view word);

/// Whether a word is "coast" in any language.
bool IsCoastNoun(std::string_view word);

}  // namespace orb::exchange
