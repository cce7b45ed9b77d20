#include "orders/exchange/text_repairs.h"

#include "model/files.h"
#include "model/record_file.h"
#include "text/strings.h"

#include <algorithm>
#include <system_error>

namespace orb::exchange {
namespace {

using Index = std::ptrdiff_t;

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Whether the text at the position is not cut out of a longer word.
bool IsWhole(std::string_view line, std::size_t at, std::string_view part) {
  const std::size_t end = at + part.size();
  if (at > 0 && IsLetter(part.front()) && IsLetter(line[at - 1])) return false;
  return end == line.size() || !IsLetter(part.back()) || !IsLetter(line[end]);
}

std::size_t FindWhole(std::string_view line, std::string_view part, std::size_t start) {
  std::size_t at = line.find(part, start);
  while (at != std::string_view::npos && !IsWhole(line, at, part))
    at = line.find(part, at + 1);
  return at;
}

/// A bit for each byte of a text; different bytes may share one.
std::uint64_t BytesOf(std::string_view text) {
  std::uint64_t bits = 0;
  for (const char c : text)
    bits |= std::uint64_t{1} << (static_cast<unsigned char>(c) % 64U);
  return bits;
}

void Append(PlainText& line, const PlainText& source, std::size_t begin, std::size_t end) {
  line.Text.append(source.Text, begin, end - begin);
  line.Origins.insert(line.Origins.end(), source.Origins.begin() + static_cast<Index>(begin),
                      source.Origins.begin() + static_cast<Index>(end));
}

/// The line with the repair made wherever it is due.
PlainText Repaired(const PlainText& line, const std::string& lower, const TextRepair& repair) {
  PlainText repaired;
  std::size_t done = 0;
  for (std::size_t at = FindWhole(lower, repair.From, 0); at != std::string::npos;
       at = FindWhole(lower, repair.From, done)) {
    Append(repaired, line, done, at);
    // What takes its place belongs as a whole to what was written.
    done = at + repair.From.size();
    repaired.Text += repair.To;
    repaired.Origins.resize(repaired.Text.size(), line.Written(at, done));
  }
  Append(repaired, line, done, line.Text.size());
  return repaired;
}

void CheckLength(const model::RecordReader& reader, std::string_view text) {
  if (text.size() <= TextRepairLength) return;
  reader.Fail("a text of at most " + std::to_string(TextRepairLength) + " characters",
              "one of " + std::to_string(text.size()));
}

}  // namespace

std::vector<TextRepair> LoadTextRepairs(std::string_view bytes, const std::string& fileName) {
  model::RecordReader reader(bytes, fileName);
  std::vector<TextRepair> repairs;
  while (!reader.AtEnd()) {
    const std::string_view from = reader.Text("a text to repair");
    if (from.empty()) reader.Fail("a text to repair", "an empty one");
    CheckLength(reader, from);
    if (repairs.size() == TextRepairBound) {
      reader.Fail("at most " + std::to_string(TextRepairBound) + " pairs", "more");
    }
    const std::string_view to = reader.Text("the text that takes its place");
    CheckLength(reader, to);
    // Read as a dash, "&mdash;" would change all dashes.
    TextRepair& repair = repairs.emplace_back();
    repair.From = text::LowerCase(ToPlain(from, 0, References::Kept).Text);
    repair.To = ToPlain(to, 0, References::Kept).Text;
    repair.Bytes = BytesOf(repair.From);
  }
  return repairs;
}

std::vector<TextRepair> ReadTextRepairs(const std::filesystem::path& directory) {
  const std::filesystem::path file = directory / "fixpaste.dat";
  // A file that cannot be looked at is not missing: reading it will say why.
  std::error_code ignored;
  if (symlink_status(file, ignored).type() == std::filesystem::file_type::not_found) return {};
  return LoadTextRepairs(model::ReadFile(file), file.string());
}

bool Repair(PlainText& line, std::span<const TextRepair> repairs) {
  // How long the line may get, and what its repairs may write together: more than any writer
  // needs, and little enough for a text of thousands of lines whose pairs undo each other.
  constexpr std::size_t oneRepair = 50;
  const std::size_t longest = std::min(LineBound, 4 * line.Text.size() + 8 * oneRepair);
  const std::size_t most = 40 * (line.Text.size() + oneRepair);
  std::size_t written = 0;
  std::string lower = text::LowerCase(line.Text);
  std::uint64_t bytes = BytesOf(lower);
  for (const TextRepair& repair : repairs) {
    // Looked at before each repair: a few pairs that double a text would otherwise fill the memory.
    if (line.Text.size() > longest || written > most) return false;
    // Few lines have all the letters of a repair.
    if ((repair.Bytes & ~bytes) != 0) continue;
    if (repair.From.empty() || FindWhole(lower, repair.From, 0) == std::string::npos) continue;
    line = Repaired(line, lower, repair);
    written += line.Text.size() + oneRepair;
    lower = text::LowerCase(line.Text);
    bytes = BytesOf(lower);
  }
  return line.Text.size() <= longest && written <= most;
}

}  // namespace orb::exchange
