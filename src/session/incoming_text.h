#pragma once

#include "mail/mail.h"

#include <string>
#include <vector>

namespace orb::session {

/// Who sent a mail, and what it is about; in UTF-8.
struct MailHead {
  std::string Sender;
  std::string Subject;
};

/// A text with orders as it came, ready to be read.
struct IncomingText {
  std::string Text;             ///< in UTF-8 or Windows-1252
  std::vector<MailHead> Mails;  ///< those that the text was in, in its order; none: no mail
};

/// The most bytes that may hold a text: those of mails, with pictures and all.
constexpr std::size_t IncomingBound = mail::MailByteBound;

/// Takes the bytes of a file, or of a clipboard's text, for what they are: mails as they were sent,
/// or a text itself. `name` says in error messages what is read. Throws FatalError.
IncomingText ReadIncomingText(std::string bytes, const std::string& name);

}  // namespace orb::session
