#pragma once

#include "mail/mail.h"

#include <string>
#include <string_view>

namespace orb::mail {

/// The name of the module that reads mails, in the directory of the program. Without GMime there is
/// none.
constexpr const char* MailModule = "orbmail.so";

/// The name of its only function, which reads a mail: false with a sentence for the user where it
/// is beyond the bounds.
constexpr const char* MailFunctionName = "OrbReadMail";
using MailFunction = bool(std::string_view bytes, Mail& mail, std::string& error);

}  // namespace orb::mail

extern "C" orb::mail::MailFunction OrbReadMail;
