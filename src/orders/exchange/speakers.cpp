#include "orders/exchange/speakers.h"

#include "orders/exchange/power_names.h"

#include <algorithm>

namespace orb::exchange {
namespace {

/// The words before the first colon, if they are few; else nothing.
std::string NameAt(Tokens line, std::size_t at) {
  constexpr std::size_t longest = 3;
  std::string name;
  for (std::size_t next = at; next < std::min(line.size(), at + longest + 1); ++next) {
    if (IsA(line[next], TokenKind::Colon)) return name;
    // "Kemal T.:".
    const bool isInitial = IsA(line[next], TokenKind::Dot) && !name.empty();
    if (!IsA(line[next], TokenKind::Word) && !isInitial) return {};
    name.append(line[next].Text).append(" ");
  }
  return {};
}

/// Whether any word means something in orders, or in headings of them.
bool SaysSomething(Tokens line, std::size_t at, const PlaceNames& names) {
  for (; !IsA(line[at], TokenKind::Colon); ++at) {
    const WordMeaning& means = line[at].Means;
    if (means.Does != Verb::None || means.UnitType != 0 || means.Uses != 0) return true;
    if (PowerAt(line, at).Power != 0 || !names.At(line, at).empty()) return true;
  }
  return false;
}

/// Behind a name before a power in brackets and a colon, "Pia (Italy):"; else the same token.
std::size_t PastPlayer(Tokens line, std::size_t at, const PlaceNames& names) {
  constexpr std::size_t longest = 2;
  for (std::size_t open = at + 1; open <= at + longest && open + 3 < line.size(); ++open) {
    if (!IsA(line[open], TokenKind::Open)) continue;
    const PowerName power = PowerAt(line, open + 1);
    const bool isTitle = power.Power != 0 && power.Next + 1 < line.size() &&
                         IsA(line[power.Next], TokenKind::Close) &&
                         IsA(line[power.Next + 1], TokenKind::Colon);
    for (std::size_t word = at; isTitle && word < open; ++word) {
      const WordMeaning& means = line[word].Means;
      if (means.Does != Verb::None || means.UnitType != 0 || means.Uses != 0) return at;
      if (!names.At(line, word).empty()) return at;
    }
    return isTitle ? open : at;
  }
  return at;
}

}  // namespace

void Speakers::Take(Tokens line, std::size_t at, const PlaceNames& names) {
  const std::string name = NameAt(line, at);
  if (!name.empty() && !SaysSomething(line, at, names)) ++lines_[name];
}

std::size_t Speakers::Past(Tokens line, std::size_t at, const PlaceNames& names) const {
  if (const std::size_t past = PastPlayer(line, at, names); past != at) return past;
  const auto found = lines_.find(NameAt(line, at));
  if (found == lines_.end() || found->second < 2) return at;
  while (!IsA(line[at], TokenKind::Colon))
    ++at;
  return at + 1;
}

}  // namespace orb::exchange
