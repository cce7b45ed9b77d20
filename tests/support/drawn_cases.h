#pragma once

#include "model/messages.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::tests {

/// One case of a case file: "== its name", the drawing line by line, notes "key: value" about it.
/// Empty lines part cases; a line that begins with "#" is a comment.
struct DrawnCase {
  std::string Name;
  std::vector<std::string> Drawing;
  std::map<std::string, std::vector<std::string>> Notes;

  bool Has(const std::string& key) const { return Notes.count(key) != 0; }

  /// The note's value, or the given one when there is none.
  std::string Note(const std::string& key, const std::string& otherwise = {}) const;

  /// The note's values, one per line of the file; "|" stands for a carriage return, "none" for
  /// none.
  std::vector<std::string> Texts(const std::string& key) const;

  /// The answers of the note "answers": Yes, No, All.
  std::vector<model::Answer> Answers() const;
};

/// The two sides of a line of the drawing: "what is given => what comes of it".
using DrawnRow = std::pair<std::string, std::string>;

/// The lines of a case's drawing as rows.
std::vector<DrawnRow> Rows(const DrawnCase& drawn);

/// The rows of the case with this name. Throws when there is none.
std::vector<DrawnRow> LoadDrawnRows(std::string_view fileName, std::string_view caseName);

/// What stands between the "; " of a row.
std::vector<std::string> Parts(std::string_view row);

/// The cases of a file below tests/. Throws when there are none.
std::vector<DrawnCase> LoadDrawnCases(std::string_view fileName);

}  // namespace orb::tests
