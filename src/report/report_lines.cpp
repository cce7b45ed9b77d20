#include "report/report_lines.h"

#include "model/country.h"
#include "text/strings.h"

namespace orb::report {

ReportLine TakeApart(std::string_view line) {
  ReportLine parts;
  const bool isBracketed = line.starts_with("[ ");
  const std::size_t end = isBracketed ? line.find(" ]") : line.find("  ", 2);
  parts.Failed = isBracketed && end != std::string_view::npos;
  if (parts.Failed) {
    parts.Order = std::string(text::Trim(line.substr(2, end - 2)));
    parts.Result = std::string(text::Trim(line.substr(end + 2)));
  } else {
    parts.Order = std::string(text::Trim(line.substr(0, end)));
    if (end != std::string_view::npos) parts.Result = std::string(text::Trim(line.substr(end)));
  }
  parts.Power = model::FindCountry(std::string_view(parts.Order).substr(0, 3));
  return parts;
}

}  // namespace orb::report
