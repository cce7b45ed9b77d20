#include "session/completions.h"

#include "session/queries.h"

#include <cctype>

namespace orb::session {
namespace {

/// The letters and digits alone, in lower case: what has to be typed. The dash of a move may be,
/// and then only moves go on with it.
std::string Bare(std::string_view text, bool withDash) {
  std::string bare;
  for (const char c : text) {
    const auto letter = static_cast<unsigned char>(c);
    if (std::isalnum(letter) != 0 || (withDash && c == '-'))
      bare += static_cast<char>(std::tolower(letter));
  }
  return bare;
}

/// Whether what is typed is a beginning of the text, which may be left without the power, or
/// without power and type, of so many characters; `whole`: also the whole of it.
bool Begins(const std::string& typed, std::string_view text, std::size_t power, std::size_t type,
            bool whole) {
  for (const std::size_t left : {std::size_t{0}, power, power + type}) {
    const std::string_view rest = text.substr(left);
    if (rest.starts_with(typed) && (whole || rest.size() > typed.size())) return true;
  }
  return false;
}

}  // namespace

std::vector<std::string> Completions(const Situation& situation, std::string_view line, int power) {
  std::vector<std::string> found;
  const bool dash = line.find('-') != std::string_view::npos;
  const std::string typed = Bare(line, dash);
  if (typed.empty()) return found;
  for (const Choices& choices : PossibleOrders(situation)) {
    if (power != 0 && model::FindCountry(choices.Power) != power) continue;
    const std::size_t powerLength = choices.Power.size();
    const std::string unit = Bare(choices.Unit, dash);
    const std::size_t typeLength = unit.empty() ? 0 : 1;
    if (Begins(typed, unit, unit.empty() ? 0 : powerLength, typeLength, false)) {
      found.push_back(choices.Unit + " ");
      continue;
    }
    for (const std::string& order : choices.Orders) {
      if (order != line && Begins(typed, Bare(order, dash), powerLength, typeLength, true))
        found.push_back(order);
    }
  }
  return found;
}

}  // namespace orb::session
