#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orb::report {

/// The length, in bytes, of the longest line of a text report: the limit recommended for mails.
constexpr std::size_t TextReportWidth = 78;

/// Adds a text in lines no longer than TextReportWidth, broken at blanks where there are any. Lines
/// after the first begin with `indent` blanks; each ends in LF.
void AddWrapped(std::string_view line, std::size_t indent, std::string& report);

}  // namespace orb::report
