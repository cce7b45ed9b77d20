#pragma once

#include "mail/mail.h"

#include <string_view>
#include <vector>

namespace orb::mail {

/// The mails in a text that looks like one, in their order. What is broken gives as much as can be
/// had. Throws FatalError beyond the bounds, and where mails cannot be read for want of GMime.
std::vector<Mail> ReadMails(std::string_view bytes);

}  // namespace orb::mail
