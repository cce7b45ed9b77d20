#pragma once

#include "model/map.h"
#include "orders/exchange/words.h"

#include <cstddef>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orb::exchange {

/// The places that some tokens can name.
struct PlaceMatch {
  std::vector<int> Rows;  ///< of the map's provinces, ascending; several for "Nor"
  std::size_t Next = 0;   ///< the token behind the name
  bool IsExact = false;   ///< spelled in full: an abbreviation, a name or another usual spelling
};

/// Every spelling of the map's places: abbreviations, full names, the beginnings of full names from
/// three letters on, and other usual abbreviations and names. Case never matters.
class PlaceNames {
 public:
  explicit PlaceNames(const model::Map& map);

  /// The places named by the tokens from here on, for each length of the name, the longest first.
  /// Coasts are not looked at.
  std::vector<PlaceMatch> At(Tokens tokens, std::size_t at) const;

  /// The row of a province's coast by its letter, or 0.
  int Coast(int province, char letter) const;

  /// The province and its coasts.
  const std::vector<int>& Locations(int province) const;

  /// A place that a word is one slip of the pen away from, or whose usual name it begins.
  struct NearPlace {
    std::string Word;      ///< to be read in its stead
    int Province = 0;      ///< row of the province
    bool IsShort = false;  ///< "Bou" for Bourgogne, "MDN" for Mer du Nord: no slip
  };

  /// The places whose usual name a word of three letters or more stands short for, and behind them
  /// those whose name, or the name's first word, is one letter away from it: one missing, surplus
  /// or wrong, or two changed places. Each province once.
  const std::vector<NearPlace>& Near(std::string_view word) const;

  /// Whether so many words were looked up that it is time to begin anew.
  bool IsFull() const;

  /// The full name that a word of five letters or more is one slip away from, or nothing.
  std::string_view NearlyNamed(std::string_view word) const;

 private:
  struct Spelling {
    std::vector<std::string> Words;
    std::string Joined;  ///< the words without blanks
    int Row = 0;
    bool MayBeShort = false;  ///< a beginning will do
  };

  /// The spellings that a word begins.
  struct Begun {
    std::vector<const Spelling*> Spellings;
    std::size_t WordCount = 0;  ///< of the longest
  };

  /// What some words name: places by how many of the words it takes.
  struct Named {
    std::vector<int> Rows;
    std::size_t WordCount = 0;
    bool IsExact = false;
  };

  const Begun& Beginning(const std::string& word) const;
  std::vector<Named> Find(const std::vector<const Spelling*>& spellings,
                          std::span<const std::string_view> words) const;
  void Add(std::string_view name, int row, bool mayBeShort);
  void AddPlace(int row);
  void AddNearOnes(std::string_view alias, int row);

  const model::Map& map_;
  std::vector<NearPlace> FindNear(std::string_view word) const;
  std::string_view FindNearlyNamed(std::string_view word) const;

  // Texts repeat their words, and to hold one against all spellings takes long: what was found is
  // kept. So several threads must not use one object at once.
  mutable std::unordered_map<std::string, Begun> beginning_;
  mutable std::unordered_map<std::string, std::vector<Named>> named_;
  mutable std::unordered_map<std::string, std::vector<NearPlace>> near_;
  mutable std::unordered_map<std::string, std::string_view> nearlyNamed_;
  std::map<char, std::vector<Spelling>> spellings_;  ///< by first letter
  std::vector<std::vector<int>> locations_;          ///< by row
};

/// The names of a map's places, kept from text to text: they take longer to make than an order to
/// read. For one thread.
const PlaceNames& PlaceNamesOf(const std::shared_ptr<const model::Map>& map);

}  // namespace orb::exchange
