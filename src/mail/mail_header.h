#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orb::mail {

/// Takes a box of mails apart, by the lines "From tom@example.org Mon Jan 1 10:00:00 2024" above
/// each of them, which are left out. What is no box is one mail.
std::vector<std::string> CutMails(std::string_view bytes);

}  // namespace orb::mail
