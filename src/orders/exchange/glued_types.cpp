#include "orders/exchange/glued_types.h"

#include "orders/exchange/power_names.h"

namespace orb::exchange {
namespace {

/// Whether the word is a type and a place, and cannot be read as anything else.
bool IsGluedType(const std::vector<Token>& tokens, std::size_t at, const PlaceNames& names) {
  const Token& word = tokens[at];
  constexpr std::size_t shortest = 4;
  // A type and the three letters of a place; without "'s" or an apostrophe, so that text and
  // writing have the same letters.
  const bool isLong = word.Kind == TokenKind::Word && word.Text.size() >= shortest &&
                      word.Text.size() == word.Written.size();
  if (!isLong || (word.Text[0] != 'a' && word.Text[0] != 'f') || word.Text == "from") return false;
  const auto commands = [&](std::size_t beside) {
    return beside < tokens.size() &&
           (VerbOf(tokens[beside]) != Verb::None || IsA(tokens[beside], TokenKind::Open) ||
            IsA(tokens[beside], TokenKind::Slash));
  };
  // Without one of these beside it, such a word is taken as it stands.
  if (!commands(at + 1) && (at == 0 || !commands(at - 1))) return false;
  Token place = word;
  place.SetWord(word.Text.substr(1));
  const auto places = names.At({&place, 1}, 0);
  return !places.empty() && places[0].IsExact && names.At(tokens, at).empty() &&
         PowerAt(tokens, at).Power == 0 && VerbOf(word) == Verb::None;
}

}  // namespace

void PartGluedTypes(std::vector<Token>& tokens, const PlaceNames& names) {
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (!IsGluedType(tokens, at, names)) continue;
    Token place = tokens[at];
    place.SetWord(place.Text.substr(1));
    place.Written.remove_prefix(1);
    ++place.Begin;
    place.Glued = true;
    Token& type = tokens[at];
    type.SetWord(type.Text.substr(0, 1));
    type.Written = type.Written.substr(0, 1);
    type.End = place.Begin;
    ++at;
    tokens.insert(tokens.begin() + static_cast<std::ptrdiff_t>(at), std::move(place));
  }
}

}  // namespace orb::exchange
