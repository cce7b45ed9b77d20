#include "orders/exchange/place_names.h"

#include "orders/exchange/spellings.h"
#include "text/strings.h"

#include <algorithm>
#include <array>
#include <optional>

namespace orb::exchange {
namespace {

constexpr std::size_t NameLength = 3;  ///< of a province's abbreviation
constexpr std::size_t WordBound = 4;   ///< words of the longest name
constexpr std::size_t ShortestStart = 3;

/// Up to four words from here on; dots and glued dashes between them are passed over.
struct WordRun {
  std::array<std::string_view, WordBound> Words;
  std::array<std::size_t, WordBound> Next{};
  std::size_t Count = 0;
};

WordRun WordsFrom(Tokens tokens, std::size_t at) {
  WordRun run;
  while (at < tokens.size() && run.Count < WordBound && IsA(tokens[at], TokenKind::Word)) {
    run.Words[run.Count] = tokens[at].Text;
    run.Next[run.Count++] = ++at;
    const bool isDot = at < tokens.size() && IsA(tokens[at], TokenKind::Dot);
    const bool isHyphen = at + 1 < tokens.size() && IsA(tokens[at], TokenKind::Dash) &&
                          tokens[at].Text == "-" && tokens[at].Glued && tokens[at + 1].Glued;
    if (isDot || isHyphen) ++at;
  }
  return run;
}

/// German "in den Kanal" leads not to Denmark.
bool IsArticle(Tokens tokens, std::size_t at) {
  constexpr std::array<std::string_view, 5> leads{"in", "durch", "gegen", "uber", "auf"};
  return at > 0 && at + 1 < tokens.size() && IsWord(tokens[at], "den") &&
         IsOneOf(tokens[at - 1], leads);
}

/// Whether one letter is missing, surplus or wrong, or two neighbours changed places.
bool IsOneSlipAway(std::string_view a, std::string_view b) {
  if (a.size() > b.size()) std::swap(a, b);
  if (b.size() - a.size() > 1 || a == b) return false;
  const auto [left, right] = std::mismatch(a.begin(), a.end(), b.begin());
  const auto at = static_cast<std::size_t>(left - a.begin());
  if (a.size() < b.size()) return a.substr(at) == b.substr(at + 1);
  if (a.substr(at + 1) == b.substr(at + 1)) return true;
  return at + 1 < a.size() && a[at] == b[at + 1] && a[at + 1] == b[at] &&
         a.substr(at + 2) == b.substr(at + 2);
}

/// Whether a word of three letters or more begins a name, or is made of the first letters of the
/// name's three words.
bool StandsShortFor(std::string_view word, const std::vector<std::string>& words,
                    std::string_view joined) {
  if (joined.size() > NameLength + 1 && joined.starts_with(word)) return true;
  return words.size() == word.size() && words.size() == NameLength &&
         std::ranges::equal(word, words, {}, {}, [](const std::string& w) { return w.front(); });
}

void AddRow(std::vector<int>& rows, int row) {
  const auto place = std::ranges::lower_bound(rows, row);
  if (place == rows.end() || *place != row) rows.insert(place, row);
}

}  // namespace

PlaceNames::PlaceNames(const model::Map& map)
    : map_(map), locations_(static_cast<std::size_t>(map.Provinces.Count()) + 1) {
  for (int row = 1; row <= map.Provinces.Count(); ++row)
    AddPlace(row);
  // Old abbreviations are understood in orders as in old files.
  for (const model::NameFix& fix : map.NameFixes)
    Add(fix.From, model::FindProvince(map, fix.To), false);
  for (const UsualSpellings& spellings : AllUsualSpellings()) {
    const int row = model::FindProvince(map, spellings.Abbreviation);
    for (const std::string_view written : Parts(spellings.Written, '|')) {
      Add(written, row, false);
      AddNearOnes(written, row);
    }
  }
}

void PlaceNames::AddPlace(int row) {
  const std::string& name = map_.Provinces[row].Name;
  const int province =
      name.size() > NameLength ? model::FindProvince(map_, name.substr(0, NameLength)) : 0;
  locations_[static_cast<std::size_t>(row)].push_back(row);
  // Coasts are named by their province and a letter, so their own names are no spellings.
  if (province != 0 && province != row) {
    locations_[static_cast<std::size_t>(province)].push_back(row);
    return;
  }
  Add(name, row, false);
  Add(map_.Provinces[row].FullName, row, true);
}

/// An alias as near to another abbreviation as a slip of the pen may mean that place as well: "tir"
/// is Tyrolia, or Trieste.
void PlaceNames::AddNearOnes(std::string_view alias, int row) {
  for (int other = 1; other <= map_.Provinces.Count() && row != 0; ++other) {
    const std::string& name = map_.Provinces[other].Name;
    const bool isOther = other != row && name.size() == NameLength;
    if (isOther && IsOneSlipAway(text::LowerCase(name), alias)) Add(alias, other, false);
  }
}

void PlaceNames::Add(std::string_view name, int row, bool mayBeShort) {
  if (row == 0) return;
  Spelling spelling{{}, {}, row, mayBeShort};
  for (const Token& token : CutTokens(name)) {
    if (!IsA(token, TokenKind::Word)) continue;
    spelling.Words.push_back(token.Text);
    spelling.Joined += token.Text;
  }
  if (spelling.Words.empty()) return;
  const char first = spelling.Joined[0];
  spellings_[first].push_back(std::move(spelling));
}

/// The spellings that begin with a word, as a whole or in their first word.
const PlaceNames::Begun& PlaceNames::Beginning(const std::string& word) const {
  const auto [known, isNew] = beginning_.try_emplace(word);
  const auto spellings = isNew && !word.empty() ? spellings_.find(word[0]) : spellings_.end();
  if (spellings == spellings_.end()) return known->second;
  Begun& begun = known->second;
  for (const Spelling& spelling : spellings->second) {
    // Shorter words are no beginnings: "a" is not Albania.
    const bool mayBegin =
        word.size() >= ShortestStart || spelling.Words[0] == word || spelling.Joined == word;
    if (!mayBegin || !std::string_view(spelling.Joined).starts_with(word)) continue;
    begun.Spellings.push_back(&spelling);
    begun.WordCount = std::max(begun.WordCount, spelling.Words.size());
  }
  return begun;
}

/// The longest first.
std::vector<PlaceNames::Named> PlaceNames::Find(const std::vector<const Spelling*>& spellings,
                                                std::span<const std::string_view> words) const {
  std::array<Named, WordBound> named;
  // Whole spellings push out mere beginnings of as many words.
  const auto add = [&](std::size_t count, int row, bool exact) {
    Named& match = named[count - 1];
    if (exact && !match.IsExact) match.Rows.clear();
    if (exact || !match.IsExact) AddRow(match.Rows, row);
    match.IsExact |= exact;
    match.WordCount = count;
  };
  const std::string_view first = words[0];
  const bool isLong = first.size() >= ShortestStart;
  for (const Spelling* const known : spellings) {
    const Spelling& spelling = *known;
    const std::size_t size = spelling.Words.size();
    if (spelling.Joined == first ||
        (spelling.MayBeShort && isLong && std::string_view(spelling.Joined).starts_with(first))) {
      add(1, spelling.Row, spelling.Joined == first);
    }
    bool isSame = true;
    for (std::size_t n = 0; n < std::min(size, words.size()); ++n) {
      // Every word of a full name may be short, the first down to three letters: "North Atl".
      if (!std::string_view(spelling.Words[n]).starts_with(words[n])) break;
      isSame = isSame && spelling.Words[n] == words[n];
      const bool isWhole = isSame && n + 1 == size;
      if (isWhole || (spelling.MayBeShort && isLong)) add(n + 1, spelling.Row, isWhole);
    }
  }
  std::vector<Named> found;
  for (std::size_t n = WordBound; n > 0; --n) {
    if (!named[n - 1].Rows.empty()) found.push_back(std::move(named[n - 1]));
  }
  return found;
}

std::vector<PlaceMatch> PlaceNames::At(Tokens tokens, std::size_t at) const {
  if (at >= tokens.size() || !IsA(tokens[at], TokenKind::Word)) return {};
  if (IsArticle(tokens, at)) {
    if (auto behind = At(tokens, at + 1); !behind.empty()) return behind;
  }
  const Begun& begun = Beginning(tokens[at].Text);
  if (begun.Spellings.empty()) return {};
  const WordRun run = WordsFrom(tokens, at);
  const auto words = std::span(run.Words).first(std::min(run.Count, begun.WordCount));
  std::string key;
  for (const std::string_view word : words)
    key.append(word).append(" ");
  const auto [known, isNew] = named_.try_emplace(std::move(key));
  if (isNew) known->second = Find(begun.Spellings, words);
  std::vector<PlaceMatch> found;
  found.reserve(known->second.size());
  for (const Named& named : known->second)
    found.push_back({named.Rows, run.Next[named.WordCount - 1], named.IsExact});
  return found;
}

int PlaceNames::Coast(int province, char letter) const {
  for (const int row : Locations(province)) {
    const std::string& name = map_.Provinces[row].Name;
    if (row != province && text::LowerCase(name).back() == letter) return row;
  }
  return 0;
}

const std::vector<int>& PlaceNames::Locations(int province) const {
  return locations_[static_cast<std::size_t>(province)];
}

std::vector<PlaceNames::NearPlace> PlaceNames::FindNear(std::string_view word) const {
  std::vector<NearPlace> near;
  if (word.size() < NameLength) return near;
  if (const auto sameFirst = spellings_.find(word[0]); sameFirst != spellings_.end()) {
    for (const Spelling& spelling : sameFirst->second) {
      const bool isKnown =
          std::ranges::find(near, spelling.Row, &NearPlace::Province) != near.end();
      if (isKnown || !StandsShortFor(word, spelling.Words, spelling.Joined)) continue;
      near.push_back({spelling.Joined, spelling.Row, true});
    }
  }
  for (const auto& entry : spellings_) {
    for (const Spelling& spelling : entry.second) {
      const bool isWhole = IsOneSlipAway(spelling.Joined, word);
      const bool isFirst = spelling.MayBeShort && spelling.Words.size() > 1 &&
                           spelling.Words[0].size() > NameLength &&
                           IsOneSlipAway(spelling.Words[0], word);
      const bool isKnown =
          std::ranges::find(near, spelling.Row, &NearPlace::Province) != near.end();
      if ((!isWhole && !isFirst) || isKnown) continue;
      near.push_back({isWhole ? spelling.Joined : spelling.Words[0], spelling.Row});
    }
  }
  return near;
}

std::string_view PlaceNames::FindNearlyNamed(std::string_view word) const {
  // Shorter words are one letter away from too many others.
  constexpr std::size_t shortest = 5;
  if (word.size() < shortest) return {};
  const auto isNear = [&](std::string_view name) {
    return name.size() >= shortest && IsOneSlipAway(name, word);
  };
  for (const auto& [letter, spellings] : spellings_) {
    for (const Spelling& spelling : spellings) {
      if (!spelling.MayBeShort) continue;
      if (isNear(spelling.Joined) || std::ranges::any_of(spelling.Words, isNear)) {
        return map_.Provinces[spelling.Row].FullName;
      }
    }
  }
  return {};
}

bool PlaceNames::IsFull() const {
  constexpr std::size_t bound = 50'000;
  return beginning_.size() + named_.size() + near_.size() + nearlyNamed_.size() > bound;
}

const std::vector<PlaceNames::NearPlace>& PlaceNames::Near(std::string_view word) const {
  const auto [known, isNew] = near_.try_emplace(std::string(word));
  if (isNew) known->second = FindNear(word);
  return known->second;
}

std::string_view PlaceNames::NearlyNamed(std::string_view word) const {
  const auto [known, isNew] = nearlyNamed_.try_emplace(std::string(word));
  if (isNew) known->second = FindNearlyNamed(word);
  return known->second;
}

const PlaceNames& PlaceNamesOf(const std::shared_ptr<const model::Map>& map) {
  struct Kept {
    std::shared_ptr<const model::Map> Map;
    std::optional<PlaceNames> Names;
  };
  thread_local Kept kept;
  if (kept.Map != map || kept.Names->IsFull()) {
    kept.Names.emplace(*map);
    kept.Map = map;
  }
  return *kept.Names;
}

}  // namespace orb::exchange
