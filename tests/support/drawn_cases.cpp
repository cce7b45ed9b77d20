#include "support/drawn_cases.h"

#include "model/files.h"
#include "support/boards.h"
#include "support/directories.h"
#include "text/strings.h"

#include <algorithm>
#include <stdexcept>

namespace orb::tests {
namespace {

/// Where the key of a note ends, or npos for a line of the drawing.
std::size_t KeyEnd(std::string_view line) {
  const auto end = line.find_first_not_of("abcdefghijklmnopqrstuvwxyz");
  return end != 0 && end != std::string_view::npos && line[end] == ':' ? end
                                                                       : std::string_view::npos;
}

void AddLine(DrawnCase& drawn, std::string_view line) {
  const auto end = KeyEnd(line);
  if (end == std::string_view::npos) {
    drawn.Drawing.emplace_back(line);
  } else {
    drawn.Notes[std::string(line.substr(0, end))].emplace_back(text::Trim(line.substr(end + 1)));
  }
}

}  // namespace

std::string DrawnCase::Note(const std::string& key, const std::string& otherwise) const {
  const auto note = Notes.find(key);
  return note == Notes.end() ? otherwise : note->second.front();
}

std::vector<std::string> DrawnCase::Texts(const std::string& key) const {
  const auto note = Notes.find(key);
  if (note == Notes.end() || note->second.front() == "none") return {};
  std::vector<std::string> texts = note->second;
  for (std::string& text : texts)
    std::replace(text.begin(), text.end(), '|', '\r');
  return texts;
}

std::vector<model::Answer> DrawnCase::Answers() const {
  std::vector<model::Answer> answers;
  for (const std::string& word : Words(Note("answers"))) {
    answers.push_back(word == "No"    ? model::Answer::No
                      : word == "All" ? model::Answer::YesToAll
                                      : model::Answer::Yes);
  }
  return answers;
}

std::vector<DrawnCase> LoadDrawnCases(std::string_view fileName) {
  const std::string bytes = model::ReadFile(TestFile(fileName));
  std::vector<DrawnCase> cases;
  for (std::string_view rest = bytes; !rest.empty();) {
    const std::string_view line = text::NextLine(rest);
    if (line.empty() || line.starts_with('#')) continue;
    if (line.starts_with("== ")) {
      cases.emplace_back().Name = line.substr(3);
    } else {
      AddLine(cases.at(cases.size() - 1), line);
    }
  }
  if (cases.empty()) throw std::runtime_error("no cases in " + std::string(fileName));
  return cases;
}

std::vector<DrawnRow> Rows(const DrawnCase& drawn) {
  std::vector<DrawnRow> rows;
  for (const std::string& line : drawn.Drawing) {
    const auto arrow = line.rfind(" => ");
    rows.emplace_back(line.substr(0, arrow), line.substr(arrow + 4));
  }
  return rows;
}

std::vector<std::string> Parts(std::string_view row) {
  std::vector<std::string> parts;
  while (!row.empty()) {
    const auto end = std::min(row.find("; "), row.size());
    parts.emplace_back(row.substr(0, end));
    row.remove_prefix(std::min(end + 2, row.size()));
  }
  return parts;
}

std::vector<DrawnRow> LoadDrawnRows(std::string_view fileName, std::string_view caseName) {
  for (const DrawnCase& drawn : LoadDrawnCases(fileName)) {
    if (drawn.Name == caseName) return Rows(drawn);
  }
  throw std::runtime_error("no case " + std::string(caseName) + " in " + std::string(fileName));
}

}  // namespace orb::tests
