#pragma once

#include <string>
#include <string_view>

namespace orb::pages {

/// The parts of a page.
struct PageParts {
  std::string Title;        ///< 8-bit text
  std::string Body;         ///< markup
  std::string Data;         ///< JSON for its script
  std::string_view Script;  ///< JavaScript
  std::string_view Hash;    ///< of the script, as content security policies have it
  std::string_view Language = "en";
};

/// A page in one file that loads nothing and runs no script but its own.
std::string Page(const PageParts& parts);

}  // namespace orb::pages
