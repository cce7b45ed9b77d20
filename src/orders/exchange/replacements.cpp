#include "orders/exchange/replacements.h"

#include "orders/exchange/embedded.h"
#include "orders/exchange/sayings.h"
#include "orders/order_list.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orb::exchange {
namespace {

/// Whether a type and a place stand here.
bool IsTypedPlace(Tokens words, std::size_t at, const PlaceNames& names) {
  return at + 1 < words.size() && UnitTypeOf(words[at]) != 0 && !names.At(words, at + 1).empty();
}

/// "To", "durch", "par" between two orders.
bool LeadsToOther(const Token& token) {
  constexpr std::array<std::string_view, 22> words{
      "to", "by",  "with", "in",  "into", "for",  "durch", "mit", "gegen", "par",  "pour",
      "en", "por", "con",  "per", "para", "door", "met",   "med", "til",   "till", "na"};
  return IsOneOf(token, words) || IsWord(token, "przez");
}

}  // namespace

bool Replaces(Tokens words) {
  constexpr std::array<std::string_view, 40> verbs{
      "streich", "strike",  "schrap",    "slet",      "stryk",    "skresl",      "change",
      "replace", "swap",    "switch",    "andere",    "andern",   "ersetze",     "ersetzen",
      "tausche", "changer", "changez",   "change",    "remplace", "remplacez",   "remplacer",
      "cambia",  "cambiad", "cambie",    "sustituye", "cambiate", "sostituisci", "sostituite",
      "muda",    "mude",    "substitui", "substitua", "verander", "vervang",     "wijzig",
      "andr",    "erstat",  "andra",     "ersatt",    "zmien"};
  constexpr std::string_view polish = "zastap";
  return std::ranges::any_of(
      words, [&](const Token& token) { return IsOneOf(token, verbs) || IsWord(token, polish); });
}

bool ReplacesNext(Tokens words) {
  constexpr auto verbs = std::to_array<std::string_view>(
      {"replaces", "ersetzt", "remplace", "sostituisce", "sustituye", "substitui", "vervangt",
       "erstatter", "ersatter", "zastepuje"});
  return std::ranges::any_of(words, [&](const Token& token) { return IsOneOf(token, verbs); });
}

PartsRead ReadReplacement(Tokens sentence, const KnownGame& known, Context& context) {
  constexpr std::size_t few = 5;
  std::size_t first = 0;
  while (first < sentence.size() && !IsTypedPlace(sentence, first, known.Names))
    ++first;
  const Tokens said = sentence.first(std::min(first, sentence.size()));
  const bool replaces = Replaces(said) || FindSaying(said, Saying::Revokes);
  if (first == sentence.size() || first > few || !replaces) return {};
  std::size_t second = first + 2;
  const auto isSameUnit = [&](std::size_t at) {
    return IsTypedPlace(sentence, at, known.Names) &&
           sentence[at + 1].Text == sentence[first + 1].Text;
  };
  while (second < sentence.size() && !isSameUnit(second))
    ++second;
  if (second >= sentence.size()) return {};
  const std::size_t end = LeadsToOther(sentence[second - 1]) ? second - 1 : second;
  Context behind = context;
  PartRead old = ReadPart(sentence.subspan(first, end - first), known, behind);
  PartRead now = ReadPart(sentence.subspan(second), known, behind, Rest::Anything);
  if (old.Kind != LineKind::Order || now.Kind != LineKind::Order ||
      orders::UnitPart(old.Meant.All[0].Line) != orders::UnitPart(now.Meant.All[0].Line)) {
    return {};
  }
  context = behind;
  const std::size_t nowEnd = second + now.End;
  PartsRead parts;
  if (first > 0) parts.emplace_back(TokenRange{0, first}, Remark());
  parts.emplace_back(TokenRange{first, end}, std::move(old));
  if (end < second) parts.emplace_back(TokenRange{end, second}, Remark());
  parts.emplace_back(TokenRange{second, nowEnd}, std::move(now));
  if (nowEnd < sentence.size()) parts.emplace_back(TokenRange{nowEnd, sentence.size()}, Remark());
  return parts;
}

}  // namespace orb::exchange
