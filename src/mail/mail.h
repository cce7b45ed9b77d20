#pragma once

#include <cstddef>
#include <string>

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

}  // namespace orb::mail
