#include "history/sequence_names.h"

#include "text/strings.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <tuple>

namespace orb::history {
namespace {

constexpr int YearsInCentury = 100;

struct NamedFile {
  std::filesystem::path File;
  std::string Name;  ///< in small letters
  int Year = 0;      ///< 0..99
  bool IsAutumn = false;
};

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsLetter(char c) {
  return c >= 'a' && c <= 'z';
}

/// Whether a season, a letter and just two digits, begins here.
bool IsSeasonAt(std::string_view name, std::size_t at) {
  return (name[at] == 's' || name[at] == 'a') && at + 2 < name.size() && IsDigit(name[at + 1]) &&
         IsDigit(name[at + 2]) && (at + 3 == name.size() || !IsDigit(name[at + 3]));
}

/// The position of the season in a name: the last one that begins a word, else the last of all. A
/// title before it may hold something that looks like a season.
std::optional<std::size_t> FindSeason(std::string_view name) {
  std::optional<std::size_t> found;
  bool foundBeginsWord = false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (!IsSeasonAt(name, i)) continue;
    const bool beginsWord = i == 0 || (!IsLetter(name[i - 1]) && !IsDigit(name[i - 1]));
    if (foundBeginsWord && !beginsWord) continue;
    found = i;
    foundBeginsWord = beginsWord;
  }
  return found;
}

std::optional<NamedFile> ReadName(const std::filesystem::path& file) {
  const std::string name = text::LowerCase(file.filename().string());
  const auto season = FindSeason(name);
  if (!season) return std::nullopt;
  const int year = (name[*season + 1] - '0') * 10 + (name[*season + 2] - '0');
  return NamedFile{file, name, year, name[*season] == 'a'};
}

/// The year, 0..99, that the sequence begins with. Only where both 99 and 00 occur can the century
/// turn within the sequence; then it begins after the longest run of missing years.
int FirstYear(const std::vector<NamedFile>& files) {
  std::array<bool, YearsInCentury> used{};
  for (const NamedFile& file : files)
    used[static_cast<std::size_t>(file.Year)] = true;
  if (!used.front() || !used.back()) return 0;
  int first = 0;
  int longest = 0;
  int missing = 0;
  for (int year = 0; year < YearsInCentury; ++year) {
    if (!used[static_cast<std::size_t>(year)]) {
      ++missing;
      continue;
    }
    if (missing > longest) {
      longest = missing;
      first = year;
    }
    missing = 0;
  }
  return first;
}

}  // namespace

std::optional<std::string> SeriesName(const std::filesystem::path& file) {
  const std::string name = text::LowerCase(file.filename().string());
  const auto season = FindSeason(name);
  return season ? std::optional(name.substr(0, *season)) : std::nullopt;
}

FileSequence SortBySeason(const std::vector<std::filesystem::path>& files) {
  FileSequence sequence;
  std::vector<NamedFile> named;
  for (const std::filesystem::path& file : files) {
    if (auto read = ReadName(file)) {
      named.push_back(std::move(*read));
    } else {
      sequence.Unfit.push_back(file);
    }
  }
  const int first = FirstYear(named);
  const auto key = [&](const NamedFile& file) {
    const int year = (file.Year + YearsInCentury - first) % YearsInCentury;
    return std::tuple<int, const std::string&>(year * 2 + (file.IsAutumn ? 1 : 0), file.Name);
  };
  std::stable_sort(named.begin(), named.end(),
                   [&](const NamedFile& a, const NamedFile& b) { return key(a) < key(b); });
  for (NamedFile& file : named)
    sequence.Files.push_back(std::move(file.File));
  return sequence;
}

}  // namespace orb::history
