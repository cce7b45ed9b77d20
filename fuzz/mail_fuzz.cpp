#include "mail/html_lines.h"
#include "mail/mail_header.h"
#include "mail/mails.h"

#include "session/incoming_text.h"
#include "support/fuzzing.h"
#include "text/encoding.h"

// The input is a file or a pasted text that may hold mails. It is also taken for a mail where it
// does not look like one, and for a page of HTML.

namespace orb::fuzz {
namespace {

void CheckMail(const mail::Mail& mail) {
  for (const std::string* text : {&mail.Sender, &mail.Address, &mail.Subject, &mail.Text})
    Require(text::IsUtf8(*text), "no UTF-8", *text);
  for (const std::string* line : {&mail.Sender, &mail.Address, &mail.Subject})
    Require(line->find_first_of("\r\n") == std::string::npos, "more than a line", *line);
}

void ReadMails(std::string_view bytes) {
  IsAccepted([&] {
    const std::vector<mail::Mail> mails = mail::ReadMails(bytes);
    Require(mails.size() <= mail::MailBound, "too many mails");
    for (const mail::Mail& mail : mails)
      CheckMail(mail);
  });
}

void ReadAll(std::string_view bytes) {
  ReadMails(bytes);
  IsAccepted([&] {
    const auto incoming = session::ReadIncomingText(std::string(bytes), "mail");
    Require(incoming.Mails.size() <= mail::MailBound, "too many mails");
  });
  const std::string lines = mail::HtmlLines(bytes);
  Require(!text::IsUtf8(bytes) || text::IsUtf8(lines), "no UTF-8", lines);
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orb::fuzz::ReadAll(orb::fuzz::Text(data, size));
  return 0;
}
