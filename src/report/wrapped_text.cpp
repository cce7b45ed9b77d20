#include "report/wrapped_text.h"

namespace orb::report {
namespace {

/// The text with blanks in place of its tabs, which lead to every eighth column.
std::string WithoutTabs(std::string_view text) {
  constexpr std::size_t tabWidth = 8;
  std::string plain;
  for (const char c : text) {
    const bool isTab = c == '\t';
    plain.append(isTab ? tabWidth - plain.size() % tabWidth : 1, isTab ? ' ' : c);
  }
  return plain;
}

}  // namespace

void AddWrapped(std::string_view line, std::size_t indent, std::string& report) {
  const std::string plain = WithoutTabs(line);
  std::string_view text = plain;
  std::size_t width = TextReportWidth;
  while (text.size() > width) {
    std::size_t end = text.substr(0, width + 1).rfind(' ');
    // The blank may be the one just behind a full line. Leading blanks are no place to break: the
    // first line would be empty.
    const bool atBlank = end != std::string_view::npos &&
                         text.substr(0, end).find_first_not_of(' ') != std::string_view::npos;
    if (!atBlank) end = width;
    report.append(text.substr(0, end)).append("\n").append(indent, ' ');
    text.remove_prefix(atBlank ? end + 1 : end);
    width = TextReportWidth - indent;
  }
  report.append(text).append("\n");
}

}  // namespace orb::report
