#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orb::mail {

/// The most that is read of mails: bytes, and mails in a box.
constexpr std::size_t MailByteBound = 10'000'000;
constexpr std::size_t MailBound = 1'000;

/// The most parts that a mail may have, and how deep they may lie in each other.
constexpr int PartBound = 200;
constexpr int DepthBound = 20;

/// What a person reads of a mail, in UTF-8.
struct Mail {
  std::string Sender;   ///< "Tom Baker <tom@example.org>", or the address alone
  std::string Address;  ///< "tom@example.org"
  std::string Subject;
  std::string Text;  ///< what was written, then the attached texts, then the forwarded mails
};

/// Whether the text is a mail as it was sent, or a box of them (mbox): whether it begins with the
/// header of one. A copy of what a mail program shows may be one, too; chats and orders ("From: Par
/// To: Bur") are none.
bool LooksLikeMail(std::string_view bytes);

/// The mails in a text that looks like one, in their order. What is broken gives as much as can be
/// had. Throws FatalError beyond the bounds, and where mails cannot be read for want of GMime.
std::vector<Mail> ReadMails(std::string_view bytes);

}  // namespace orb::mail
