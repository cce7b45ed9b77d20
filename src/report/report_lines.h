#pragma once

#include <string>
#include <string_view>

namespace orb::report {

/// A line of the report taken apart: "[ FRA A(Bel) hold ]  dislodged".
struct ReportLine {
  std::string Order;  ///< "FRA A(Bel) hold"; of a heading its word
  std::string Result;
  bool Failed = false;  ///< it stands in brackets
  int Power = 0;        ///< its row; 0: the line is of none
};

/// Takes a line of the report apart.
ReportLine TakeApart(std::string_view line);

}  // namespace orb::report
