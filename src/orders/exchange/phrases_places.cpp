#include "orders/exchange/phrases.h"
#include "orders/exchange/vocabulary.h"
#include "text/strings.h"

#include <algorithm>
#include <array>
#include <iterator>

// Places with their coasts, of the parts that orders are made of.

namespace orb::exchange {

std::vector<int> Phrases::CoastRows(const std::vector<int>& provinces, char letter) const {
  std::vector<int> rows;
  for (const int province : provinces) {
    if (const int coast = names_.Coast(province, letter); coast != 0) rows.push_back(coast);
  }
  return rows;
}

bool Phrases::IsCoastNoun(std::size_t at) const {
  return Is(at, TokenKind::Word) && exchange::IsCoastNoun(tokens_[at].Text);
}

/// "Spa(sc)", "Spa/s", "Spa.s", "Spa-sc", "Spa (s.c.)", "Spain, south coast".
void Phrases::AddCoasts(const PlaceMatch& match, std::size_t at, Read<WrittenPlace>& places) const {
  std::size_t next = match.Next;
  const bool isOpen = Is(next, TokenKind::Open);
  const bool isParted = isOpen || Is(next, TokenKind::Slash) || Is(next, TokenKind::Dot) ||
                        Is(next, TokenKind::Comma) ||
                        (Is(next, TokenKind::Dash) && tokens_[next].Glued);
  if (isParted) ++next;
  // "costa sur", "cote du sud", "wyb. pld.".
  if (IsCoastNoun(next)) next += Is(next + 1, TokenKind::Dot) ? 2 : 1;
  if (!Is(next, TokenKind::Word)) return;
  const char letter = CoastLetter(tokens_[next].Text);
  std::vector<int> rows = CoastRows(match.Rows, letter);
  if (letter == 0 || rows.empty()) return;
  const bool isShort = tokens_[next++].Text.size() == 1;
  // "s.c." comes as four tokens.
  if (isShort && Is(next, TokenKind::Dot) && (Is(next + 1, "c") || Is(next + 1, "k"))) {
    next += Is(next + 2, TokenKind::Dot) ? 3 : 2;
  } else if (IsCoastNoun(next)) {
    ++next;
  }
  if (isOpen && Is(next, TokenKind::Dot) && Is(next + 1, TokenKind::Close)) ++next;
  if (isOpen && Is(next, TokenKind::Close)) ++next;
  places.push_back({{std::move(rows), {at, next}}, next});
}

/// "spasc", "StpS": an abbreviation with its coast in one word.
void Phrases::AddGluedCoast(std::size_t at, Read<WrittenPlace>& places) const {
  constexpr std::size_t nameLength = 3;
  constexpr std::size_t longest = nameLength + 2;
  Token province = tokens_[at];
  if (province.Text.size() <= nameLength || province.Text.size() > longest) return;
  const char letter = CoastLetter(std::string_view(province.Text).substr(nameLength));
  province.SetWord(province.Text.substr(0, nameLength));
  for (const PlaceMatch& match : names_.At({&province, 1}, 0)) {
    std::vector<int> rows = CoastRows(match.Rows, letter);
    if (match.IsExact && !rows.empty()) {
      places.push_back({{std::move(rows), {at, at + 1}}, at + 1});
    }
  }
}

/// "the north coast of Spain", "nc Spain".
void Phrases::AddLeadingCoast(std::size_t at, Read<WrittenPlace>& places) const {
  const char letter = CoastLetter(tokens_[at].Text);
  const bool isLong = tokens_[at].Text.size() > 1;
  std::size_t next = at + 1;
  // "S Spain" is a support of Spain, not its south coast.
  if (letter == 0 || !isLong) return;
  if (IsCoastNoun(next)) ++next;
  while (Is(next, "of") || Is(next, "the"))
    ++next;
  if (!Is(next, TokenKind::Word)) return;
  for (const PlaceMatch& match : names_.At(tokens_, next)) {
    std::vector<int> rows = CoastRows(match.Rows, letter);
    if (!rows.empty()) places.push_back({{std::move(rows), {at, match.Next}}, match.Next});
  }
}

/// Behind other names of the place in brackets, "Par (Paris)", "Atlantique (MAO)", "Bre (la Manche,
/// ECH)"; of what the name alone leaves open, they leave only what they name as well. Else 0.
std::size_t Phrases::PastEcho(PlaceMatch& match) const {
  if (!Is(match.Next, TokenKind::Open)) return 0;
  std::vector<int> rows = match.Rows;
  std::size_t next = Skip(match.Next + 1);
  if (Is(next, TokenKind::Close)) return 0;
  while (Is(next, TokenKind::Word)) {
    std::size_t behind = 0;
    for (const PlaceMatch& echo : names_.At(tokens_, next)) {
      std::vector<int> common;
      std::ranges::set_intersection(rows, echo.Rows, std::back_inserter(common));
      const bool isEnd = Is(echo.Next, TokenKind::Close) || Is(echo.Next, TokenKind::Comma);
      if (common.empty() || !isEnd || (common != rows && !echo.IsExact)) continue;
      rows = std::move(common);
      behind = echo.Next;
      break;
    }
    if (behind == 0) return 0;
    if (Is(behind, TokenKind::Close)) {
      match.Rows = std::move(rows);
      return behind + 1;
    }
    next = Skip(behind);
  }
  return 0;
}

/// "Midt-Atlanteren (MAO)": behind a name that is not known, the place in brackets.
void Phrases::AddExplained(std::size_t at, Read<WrittenPlace>& places) const {
  constexpr std::size_t longest = 3;  // words and hyphens of the name
  std::size_t open = at;
  while (open < std::min(at + longest, tokens_.size()) && !Is(open, TokenKind::Open)) {
    const bool isHyphen = Is(open, TokenKind::Dash) && tokens_[open].Glued;
    const bool isName = Is(open, TokenKind::Word) && VerbOf(tokens_[open]) == Verb::None &&
                        tokens_[open].Means.Uses == 0 && UnitTypeOf(tokens_[open]) == 0;
    if (!isHyphen && !isName) return;
    ++open;
  }
  if (open == at || !Is(open, TokenKind::Open) || !tokens_[at].Capital) return;
  for (const PlaceMatch& match : names_.At(tokens_, open + 1)) {
    if (!match.IsExact || match.Rows.size() != 1 || !Is(match.Next, TokenKind::Close)) continue;
    places.push_back({{match.Rows, {at, open}}, match.Next + 1});
    return;
  }
}

/// Behind an article before a place, "para o Piemonte", "naar het Kanaal"; right behind the verb
/// alone, since "o" is "or" as well.
std::size_t Phrases::PastArticle(std::size_t at) const {
  constexpr std::array<std::string_view, 6> articles{"o", "a", "den", "het", "det", "de"};
  const bool isArticle = at > 0 && Is(at, TokenKind::Word) && !tokens_[at].Capital &&
                         std::ranges::find(articles, tokens_[at].Text) != articles.end() &&
                         Is(at - 1, TokenKind::Word) && VerbOf(tokens_[at - 1]) == Verb::Move;
  return isArticle && names_.At(tokens_, at).empty() && !names_.At(tokens_, at + 1).empty() ? at + 1
                                                                                            : at;
}

bool Phrases::IsPair(const WrittenPlace& place) const {
  const std::size_t next = Is(place.At.End, TokenKind::Dot) ? place.At.End + 1 : place.At.End;
  const auto whole = names_.At(tokens_, place.At.Begin);
  return IsWordAt(next) && (whole.empty() || whole[0].Next <= next);
}

bool Phrases::IsNearPlace(std::size_t at) const {
  return IsWordAt(at) && tokens_[at].Text.size() > 3 && names_.At(tokens_, at).empty() &&
         !names_.Near(tokens_[at].Text).empty();
}

bool Phrases::IsWater(const WrittenPlace& place) const {
  return std::ranges::all_of(place.Rows, [&](int row) {
    // Waters are spelled in capitals on the map.
    return text::UpperCase(map_.Provinces[row].Name) == map_.Provinces[row].Name;
  });
}

Phrases::Read<WrittenPlace> Phrases::Places(std::size_t at, std::string_view whenMissing,
                                            std::string_view whenUnknown) {
  at = Skip(at);
  Read<WrittenPlace> places;
  if (!Is(at, TokenKind::Word)) {
    Expected(whenMissing, at);
    return places;
  }
  at = PastArticle(at);
  for (PlaceMatch match : names_.At(tokens_, at)) {
    places.push_back({{match.Rows, {at, match.Next}}, match.Next});
    AddCoasts(match, at, places);
    if (const std::size_t behind = PastEcho(match); behind != 0) {
      places.push_back({{match.Rows, {at, match.Next}}, behind});
    }
  }
  AddGluedCoast(at, places);
  AddLeadingCoast(at, places);
  if (places.empty()) AddExplained(at, places);
  if (places.empty()) Unknown(at, whenUnknown, at + 1);
  return places;
}

}  // namespace orb::exchange
