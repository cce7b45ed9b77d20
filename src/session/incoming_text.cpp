#include "session/incoming_text.h"

#include "mail/mail_header.h"
#include "mail/mails.h"

#include "orders/exchange/order_files.h"
#include "orders/exchange/read_orders.h"

#include <utility>

namespace orb::session {
namespace {

IncomingText ReadMails(std::string_view bytes) {
  IncomingText incoming;
  const std::vector<mail::Mail> mails = mail::ReadMails(bytes);
  for (const mail::Mail& mail : mails) {
    if (&mail != mails.data()) incoming.Text.append(exchange::TextSeparator).append("\n");
    if (mails.size() > 1) {
      // Where there are several, the lines tell which one an order stands in.
      incoming.Text.append("From: ").append(mail.Sender);
      incoming.Text.append("\nSubject: ").append(mail.Subject).append("\n\n");
    }
    incoming.Text += mail.Text;
    const bool isNamed = !mail.Sender.empty() || !mail.Subject.empty();
    if (isNamed) incoming.Mails.push_back({mail.Sender, mail.Subject});
  }
  return incoming;
}

}  // namespace

IncomingText ReadIncomingText(std::string bytes, const std::string& name) {
  if (mail::LooksLikeMail(bytes)) return ReadMails(bytes);
  std::string text = exchange::OrdersFileText(std::move(bytes), name);
  // A mail that an editor saved in UTF-16.
  if (mail::LooksLikeMail(text)) return ReadMails(text);
  return {std::move(text), {}};
}

}  // namespace orb::session
