#pragma once

#include "model/stage.h"
#include "orders/exchange/place_names.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/written_order.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::exchange {

// The ends of sentences about something written.
constexpr std::string_view NotOnTheMap = " is not on the map";
constexpr std::string_view NotUnderstoodText = " is not understood";

/// The parts that orders are made of, read from one run of tokens. Reading passes over brackets,
/// commas, full stops and fillers. Of all faults the one furthest behind is kept: the reading that
/// got there is the one most likely meant.
class Phrases {
 public:
  template <class Part>
  using Read = std::vector<std::pair<Part, std::size_t>>;  ///< with the token behind it

  Phrases(Tokens tokens, const PlaceNames& names, const model::Map& map, model::Stage stage)
      : tokens_(tokens), names_(names), map_(map), stage_(stage) {}

  PowerName Power(std::size_t at) const;
  Read<WrittenPlace> Places(std::size_t at, std::string_view whenMissing,
                            std::string_view whenUnknown = NotOnTheMap);
  Read<WrittenUnit> Units(std::size_t at);

  /// The verb here and the token behind all its words; of "moves to hold" it is Hold.
  std::pair<Verb, std::size_t> VerbAt(std::size_t at) const;

  /// Whether the verb here is one that commands a unit named behind it.
  bool MayLead(std::size_t at) const;

  bool IsWordAt(std::size_t at) const { return Is(at, TokenKind::Word); }

  /// Whether another name follows a place at once, and the two are no name together: "lon nth".
  bool IsPair(const WrittenPlace& place) const;

  /// Whether a word here names no place, but nearly does.
  bool IsNearPlace(std::size_t at) const;

  bool IsWater(const WrittenPlace& place) const;

  /// The power alone in brackets here, "(GER)", and the token behind them.
  PowerName PowerInBrackets(std::size_t at) const;

  /// The type of unit here, or 0, and the token behind it.
  std::pair<char, std::size_t> TypeAt(std::size_t at) const;

  // Behind words that may stand there; the same token when there are none.
  std::size_t PastGift(std::size_t at) const;    ///< "gets a", before a type
  std::size_t PastVia(std::size_t at) const;     ///< "via convoy", "by F NTH"
  std::size_t PastConvoy(std::size_t at) const;  ///< "(convoy)" behind a move
  std::size_t PastNoun(std::size_t at) const;    ///< "the move of"
  std::size_t PastPlace(std::size_t at, const WrittenPlace& place) const;  ///< "in Paris"
  std::size_t PastCount(std::size_t at) const;                             ///< "2 builds"
  std::size_t PastColon(std::size_t at) const;  ///< a colon before a place, "Vienna : Galicia"
  std::size_t PastMarks(std::size_t at) const;  ///< punctuation behind a power or a verb

  /// Whether nothing but punctuation and comments is left; else a fault.
  bool Ends(std::size_t at);

  void Expected(std::string_view reason, std::size_t at);
  void NotInStage(std::size_t at);
  const std::optional<Fault>& Problem() const { return problem_; }

 private:
  std::size_t Skip(std::size_t at) const;
  bool IsCount(std::size_t at) const;
  std::size_t PastDecoration(std::size_t at) const;
  bool IsPassedOver(std::size_t at) const;
  std::size_t ToVerb(std::size_t at) const;
  bool IsVerbInBrackets(std::size_t at) const;
  bool IsDirection(std::size_t at) const;
  std::pair<Verb, std::size_t> VerbPhraseAt(std::size_t at) const;
  bool IsReflexive(std::size_t at) const;
  bool IsPreposition(std::size_t at) const;
  std::size_t PastMark(std::size_t type) const;
  bool Is(std::size_t at, TokenKind kind) const;
  bool Is(std::size_t at, std::string_view word) const;
  void SetProblem(std::string reason, TokenRange at, bool isNoPlace = false);
  void Unknown(std::size_t at, std::string_view reason, std::size_t end);
  std::size_t EndOfBracket(std::size_t at) const;
  void AddCoasts(const PlaceMatch& match, std::size_t at, Read<WrittenPlace>& places) const;
  void AddGluedCoast(std::size_t at, Read<WrittenPlace>& places) const;
  void AddLeadingCoast(std::size_t at, Read<WrittenPlace>& places) const;
  void AddExplained(std::size_t at, Read<WrittenPlace>& places) const;
  std::size_t PastEcho(PlaceMatch& match) const;
  std::size_t PastArticle(std::size_t at) const;
  bool IsCoastNoun(std::size_t at) const;
  std::vector<int> CoastRows(const std::vector<int>& provinces, char letter) const;

  Tokens tokens_;
  const PlaceNames& names_;
  const model::Map& map_;
  model::Stage stage_;
  std::optional<Fault> problem_;
};

}  // namespace orb::exchange
