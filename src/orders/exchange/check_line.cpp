#include "orders/exchange/check_line.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace orb::exchange {
namespace {

constexpr std::string_view Begin = "[ORB sheet: ";

/// What a line says, in its order: power, season, stage, game.
using Words = std::array<std::string, 4>;

/// A title as eight hexadecimal digits (FNV-1a): it may hold anything, even what reads as an order.
std::string TitleDigits(std::string_view title) {
  std::uint32_t hash = 2166136261U;
  for (const char c : title)
    hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (int shift = 28; shift >= 0; shift -= 4)
    text.push_back(digits[hash >> shift & 0xF]);
  return text;
}

/// "Spring-1901"; of a season with another name only what can stand in one word.
std::string SeasonWord(const model::GameState& game) {
  std::string word = game.Season + "-" + std::to_string(game.Year);
  for (char& c : word) {
    const bool isPlain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    if (!isPlain) c = '-';
  }
  return word;
}

Words WordsOf(const model::GameState& game, std::string_view power) {
  return {std::string(power), SeasonWord(game), std::string(model::StageName(game.Stage)),
          TitleDigits(game.Title)};
}

/// A line of a text: where it begins and what it says.
struct Found {
  std::size_t Offset, Length;
  Words Said;
};

/// The check line that begins at the offset; nothing for anything else.
std::optional<Found> ReadAt(std::string_view text, std::size_t offset) {
  const std::size_t end = text.find_first_of("]\r\n", offset);
  if (end == std::string_view::npos || text[end] != ']') return std::nullopt;
  std::string_view rest = text.substr(offset + Begin.size(), end - offset - Begin.size());
  Found found{offset, end + 1 - offset, {}};
  for (std::string& word : found.Said) {
    word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(rest.size(), word.size() + 1));
  }
  return rest.empty() && !found.Said.back().empty() ? std::optional(found) : std::nullopt;
}

std::vector<Found> FindAll(std::string_view text) {
  std::vector<Found> all;
  for (std::size_t at = text.find(Begin); at != std::string_view::npos;
       at = text.find(Begin, at + 1)) {
    if (auto found = ReadAt(text, at)) all.push_back(std::move(*found));
  }
  return all;
}

std::string Blanked(std::string season) {
  std::replace(season.begin(), season.end(), '-', ' ');
  return season;
}

}  // namespace

std::string CheckLineText(const model::GameState& game, std::string_view power) {
  std::string line(Begin);
  for (const std::string& word : WordsOf(game, power))
    line.append(line.size() == Begin.size() ? "" : " ").append(word);
  return line.append("]");
}

std::string WithoutCheckLines(std::string_view text) {
  std::string masked(text);
  for (const Found& found : FindAll(text))
    std::fill_n(masked.begin() + static_cast<std::ptrdiff_t>(found.Offset), found.Length, ' ');
  return masked;
}

std::vector<std::string> SheetWarnings(const model::GameState& game, std::string_view text,
                                       std::string_view power) {
  std::vector<std::string> warnings;
  const auto add = [&warnings](std::string warning) {
    if (std::ranges::find(warnings, warning) == warnings.end()) {
      warnings.push_back(std::move(warning));
    }
  };
  const Words own = WordsOf(game, power);
  for (const Found& found : FindAll(text)) {
    const auto& [sheetPower, season, stage, title] = found.Said;
    if (title != own[3]) add("The order sheet of " + sheetPower + " is of another game.");
    if (season != own[1]) {
      add("The order sheet of " + sheetPower + " is of " + Blanked(season) + "; the game is in " +
          Blanked(own[1]) + ".");
    } else if (stage != own[2]) {
      std::string wrong("The order sheet of ");
      wrong.append(sheetPower).append(" is for the stage \"").append(stage);
      add(wrong.append("\"; the game is in the stage \"").append(own[2]).append("\"."));
    }
    if (!power.empty() && sheetPower != power) {
      add("The order sheet is of " + sheetPower + ", not of " + std::string(power) + ".");
    }
  }
  return warnings;
}

}  // namespace orb::exchange
