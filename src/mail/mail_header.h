#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orb::mail {

/// Whether the text is a mail as it was sent, or a box of them (mbox): whether it begins with the
/// header of one. A copy of what a mail program shows may be one, too; chats and orders ("From: Par
/// To: Bur") are none.
bool LooksLikeMail(std::string_view bytes);

/// Takes a box of mails apart, by the lines "From tom@example.org Mon Jan 1 10:00:00 2024" above
/// each of them, which are left out. What is no box is one mail.
std::vector<std::string> CutMails(std::string_view bytes);

}  // namespace orb::mail
