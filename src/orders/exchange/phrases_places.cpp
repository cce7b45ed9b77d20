#include "orders/exchange/phrases.h"
#include "orders/exchange/vocabulary.h"

// Places with their coasts, of the parts that orders are made of.

namespace orb::exchange {

std::vector<int> Phrases::CoastRows(const std::vector<int>& provinces, char letter) const {
  std::vector<int> rows;
  for (const int province : provinces) {
    if (const int coast = names_.Coast(province, letter); coast != 0) rows.push_back(coast);
  }
  return rows;
}

/// "Spa(sc)", "Spa/s", "Spa.s", "Spa-sc", "Spa (s.c.)", "Spain, south coast".
void Phrases::AddCoasts(const PlaceMatch& match, std::size_t at, Read<WrittenPlace>& places) const {
  std::size_t next = match.Next;
  const bool isOpen = Is(next, TokenKind::Open);
  const bool isParted = isOpen || Is(next, TokenKind::Slash) || Is(next, TokenKind::Dot) ||
                        Is(next, TokenKind::Comma) ||
                        (Is(next, TokenKind::Dash) && tokens_[next].Glued);
  if (isParted) ++next;
  if (!Is(next, TokenKind::Word)) return;
  const char letter = CoastLetter(tokens_[next].Text);
  std::vector<int> rows = CoastRows(match.Rows, letter);
  if (letter == 0 || rows.empty()) return;
  const bool isShort = tokens_[next++].Text.size() == 1;
  // "s.c." comes as four tokens.
  if (isShort && Is(next, TokenKind::Dot) && Is(next + 1, "c")) {
    next += Is(next + 2, TokenKind::Dot) ? 3 : 2;
  } else if (Is(next, "coast") || Is(next, "cst")) {
    ++next;
  }
  if (isOpen && Is(next, TokenKind::Close)) ++next;
  places.push_back({{std::move(rows), {at, next}}, next});
}

/// "spasc": an abbreviation with its coast in one word.
void Phrases::AddGluedCoast(std::size_t at, Read<WrittenPlace>& places) const {
  constexpr std::size_t nameLength = 3;
  constexpr std::size_t coastLength = 2;
  Token province = tokens_[at];
  if (province.Text.size() != nameLength + coastLength) return;
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
  if (Is(next, "coast")) ++next;
  while (Is(next, "of") || Is(next, "the"))
    ++next;
  if (!Is(next, TokenKind::Word)) return;
  for (const PlaceMatch& match : names_.At(tokens_, next)) {
    std::vector<int> rows = CoastRows(match.Rows, letter);
    if (!rows.empty()) places.push_back({{std::move(rows), {at, match.Next}}, match.Next});
  }
}

/// Behind the same place once more in brackets, "Par (Paris)"; else 0.
std::size_t Phrases::PastEcho(const PlaceMatch& match) const {
  if (!Is(match.Next, TokenKind::Open) || !Is(match.Next + 1, TokenKind::Word)) return 0;
  for (const PlaceMatch& echo : names_.At(tokens_, match.Next + 1)) {
    if (echo.Rows == match.Rows && Is(echo.Next, TokenKind::Close)) return echo.Next + 1;
  }
  return 0;
}

Phrases::Read<WrittenPlace> Phrases::Places(std::size_t at, std::string_view whenMissing,
                                            std::string_view whenUnknown) {
  at = Skip(at);
  Read<WrittenPlace> places;
  if (!Is(at, TokenKind::Word)) {
    Expected(whenMissing, at);
    return places;
  }
  for (const PlaceMatch& match : names_.At(tokens_, at)) {
    places.push_back({{match.Rows, {at, match.Next}}, match.Next});
    AddCoasts(match, at, places);
    if (const std::size_t behind = PastEcho(match); behind != 0) {
      places.push_back({{match.Rows, {at, match.Next}}, behind});
    }
  }
  AddGluedCoast(at, places);
  AddLeadingCoast(at, places);
  if (places.empty()) Unknown(at, whenUnknown, at + 1);
  return places;
}

}  // namespace orb::exchange
