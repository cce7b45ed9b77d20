#include "mail/mails.h"

#include "mail/mail_header.h"
#include "mail/mime.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/modules.h"
#include "text/strings.h"

#include <system_error>

namespace orb::mail {
namespace {

/// Whether a mail says that it is more than a plain text.
bool IsEncoded(std::string_view mail) {
  const std::string lower = text::LowerCase(mail);
  return lower.find("\ncontent-type:") != std::string::npos ||
         lower.find("\ncontent-transfer-encoding:") != std::string::npos;
}

/// For a program without the module: plain mails as they stand.
bool ReadWithoutModule(std::string_view bytes, Mail& mail, std::string& error) {
  mail.Text = bytes;
  error =
      "This is a mail as it was sent, and this ORB cannot read mails: it was built without GMime "
      "(Debian: libgmime-3.0-dev). The text of the mail, copied from a mail program, can be read.";
  return !IsEncoded(bytes);
}

/// The function that reads a mail.
MailFunction& LoadReader() {
  const std::filesystem::path file = model::ProgramDirectory() / MailModule;
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) return ReadWithoutModule;
  void* const function = model::ModuleFunction(file, MailFunctionName, "Mails cannot be read");
  return *reinterpret_cast<MailFunction*>(function);
}

std::string AtMost(const std::string& what, std::size_t found, std::size_t bound) {
  return "There are " + std::to_string(found) + " " + what + "; at most " + std::to_string(bound) +
         " are read.";
}

}  // namespace

std::vector<Mail> ReadMails(std::string_view bytes) {
  if (bytes.size() > MailByteBound) {
    throw model::FatalError(AtMost("bytes of mail", bytes.size(), MailByteBound));
  }
  const std::vector<std::string> cut = CutMails(bytes);
  if (cut.size() > MailBound) throw model::FatalError(AtMost("mails", cut.size(), MailBound));
  MailFunction& read = LoadReader();
  std::vector<Mail> mails;
  for (const std::string& one : cut) {
    std::string error;
    if (!read(one, mails.emplace_back(), error)) throw model::FatalError(error);
  }
  return mails;
}

}  // namespace orb::mail
