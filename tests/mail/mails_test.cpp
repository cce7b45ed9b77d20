#include "mail/mails.h"

#include "mail/html_lines.h"
#include "mail/mail_header.h"
#include "mail/mime.h"

#include "model/errors.h"
#include "model/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using Strings = std::vector<std::string>;

bool CannotRead() {
  return !std::filesystem::exists(model::ProgramDirectory() / mail::MailModule);
}

const std::string Head = "From: Tom <tom@example.org>\nTo: gm@example.org\nSubject: s\n";
const std::string Mime = Head + "MIME-Version: 1.0\n";
const std::string Plain = "Content-Type: text/plain";
const std::string Html = "Content-Type: text/html";

std::string Part(const std::string& header, const std::string& text) {
  return "--bb\n" + header + "\n\n" + text + "\n";
}

std::string Multipart(const std::string& kind, const Strings& parts) {
  std::string text = "Content-Type: multipart/" + kind + "; boundary=bb\n\n";
  for (const std::string& part : parts)
    text += part;
  return text + "--bb--\n";
}

TEST(Mails, AreToldFromOrdersAndChats) {
  const std::vector<std::pair<bool, std::string>> cases{
      {true, Head + "\nA Par - Bur\n"},
      {true, "\xEF\xBB\xBF\r\n" + Mime + "\r\nA Par - Bur"},
      {true, "Received: from a\n\tby b; Mon, 1 Jan 2024\nfrom: tom\n"},
      {true, "From tom@example.org Mon Jan  1 10:00:00 2024\nFrom: Tom\n\nA Par - Bur\n"},
      {true, "Received: from a\nFrom: Tom\nthis line was broken\n\nA Par - Bur\n"},
      {false, "From: Par To: Bur\n"},
      {false, "From: Par\nTo: Bur\n\nFrom: Mar\nTo: Spa\n"},
      {false, "From: tom@example.org\nParis: move to Burgundy\nTo: Bur\n"},
      {false, "From: tom@example.org\nSubject: orders\nA Par - Bur\n"},
      {false, "From Paris to Burgundy\nSubject: orders\nDate: today\n"},
      {false, "Hi,\nFrom: tom@example.org\nTo: gm@example.org\nMIME-Version: 1.0\n"},
      {false, "FRA A(Par) - Bur\n"},
      {false, "Message-ID: 1\n\n"},
      {false, ""},
  };
  for (const auto& [isMail, bytes] : cases)
    EXPECT_EQ(mail::LooksLikeMail(bytes), isMail) << bytes;
}

TEST(Mails, GiveWhatAPersonReads) {
  if (CannotRead()) GTEST_SKIP() << "built without GMime";
  const std::string base64 = "\nContent-Transfer-Encoding: base64\n\n";
  const std::vector<std::pair<std::string, std::string>> cases{
      {"Content-Transfer-Encoding: quoted-printable\n" + Plain +
           "; charset=utf-8\n\nA Mar S A Par =\n=E2=80=93 Bur=20\n=46rom\n",
       "A Mar S A Par \xE2\x80\x93 Bur \nFrom\n"},
      {Plain + "; charset=iso-8859-15" + base64 + "QSBQ\nYXIgLSCkIPw=\n",
       "A Par - \xE2\x82\xAC \xC3\xBC\n"},
      {Plain + "; charset=iso-8859-1\n\nM\xFCnchen \x96 Bur\n",
       "M\xC3\xBCnchen \xE2\x80\x93 Bur\n"},
      {Plain + "; charset=koi8-r\n\n\xF0 \n", "\xD0\x9F \n"},
      {Plain + "\n\nM\xC3\xBCnchen\n", "M\xC3\xBCnchen\n"},
      {Plain + "; charset=utf-8\n\nM\xC3\xBCn\xF8\x88\x88\x88\x88\n",
       "M\xC3\xBCn\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\n"},
      {Html + "; charset=iso-8859-1\n\n<p>M\xFCnchen<br>A Par\n- Bur</p>\n",
       "M\xC3\xBCnchen\nA Par - Bur\n"},
      {Multipart("alternative", {Part(Plain, "A Par - Bur"), Part(Html, "<p>no")}),
       "A Par - Bur\n"},
      {Multipart("alternative", {Part(Plain, " "), Part(Html, "<p>A Par")}), "A Par\n"},
      {Multipart("mixed", {Part(Plain + "; name=o.txt", "A Mar H"),
                           Part("Content-Type: message/rfc822",
                                "From: Ann <ann@example.org>\nSubject: old\n\nA Par H"),
                           Part("Content-Type: image/png", "x"), Part(Plain, "Hi"),
                           Part("Content-Disposition: attachment; filename=\"f.txt\"\n"
                                "Content-Type: application/octet-stream",
                                "A Bre H")}),
       "Hi\nAttachment o.txt:\nA Mar H\nAttachment f.txt:\nA Bre H\n"
       "---------- Forwarded message ----------\nFrom: Ann <ann@example.org>\nSubject: old\n\n"
       "A Par H\n"},
      // Broken ones.
      {Plain + "; charset=nonsense\n\nM\xFCnchen\n", "M\xC3\xBCnchen\n"},
      {Plain + "; charset=shift_jis\n\nA\x81\n", "A\xEF\xBF\xBD\n"},
      {Plain + base64 + "A Par - Bur.\n", "A Par - Bur.\n"},
      {Plain + base64 + "QSBQYXI\n", "A Par\n"},
      {"Content-Type: multipart/mixed\n\nA Par - Bur\n", "A Par - Bur\n"},
      {"Content-Type: multipart/mixed; boundary=cc\n\nA Par - Bur\n", "A Par - Bur\n"},
      {"Content-Type: multipart/mixed; boundary=bb\n\n" + Part(Plain, "A Par - Bur"),
       "A Par - Bur\n"},
      {"Content-Type: nonsense\n\nA Par - Bur\n", "A Par - Bur\n"},
      {std::string("\nA\0\fB", 5), "A  B\n"},
  };
  for (const auto& [rest, text] : cases) {
    const std::vector<mail::Mail> mails = mail::ReadMails(Mime + rest);
    ASSERT_EQ(mails.size(), 1U);
    EXPECT_EQ(mails[0].Text, text) << rest;
    EXPECT_EQ(mails[0].Sender, "Tom <tom@example.org>");
  }
}

TEST(Mails, ABoxHoldsThemWithTheirHeads) {
  if (CannotRead()) GTEST_SKIP() << "built without GMime";
  const std::string line = "From tom@example.org Mon Jan  1 10:00:00 2024\r\n";
  const std::vector<mail::Mail> mails = mail::ReadMails(
      line + "From: =?utf-8?q?J=C3=BCrgen?= <j@example.org>\r\n" +
      "Subject: =?iso-8859-1?b?/HBw?=\r\n =?utf-8?q?_=E2=86=92?=\r\n\r\nA Par - Bur\r\n" +
      "From Paris to Burgundy\r\n>From Rome\r\n\r\n" + line +
      "From: ann@example.org\r\n\r\n> A\r\n>From Rome\r\n");
  ASSERT_EQ(mails.size(), 2U);
  EXPECT_EQ(mails[0].Sender, "J\xC3\xBCrgen <j@example.org>");
  EXPECT_EQ(mails[0].Address, "j@example.org");
  EXPECT_EQ(mails[0].Subject, "\xC3\xBCpp \xE2\x86\x92");
  EXPECT_EQ(mails[0].Text, "A Par - Bur\r\nFrom Paris to Burgundy\r\nFrom Rome\r\n\r\n");
  EXPECT_EQ(mails[1].Sender, "ann@example.org");
  EXPECT_EQ(mails[1].Text, "> A\r\n>From Rome\r\n");
}

TEST(Mails, BeyondTheBoundsAreRefusedWithASentence) {
  if (CannotRead()) GTEST_SKIP() << "built without GMime";
  const auto error = [](const std::string& bytes) -> std::string {
    try {
      mail::ReadMails(bytes);
    } catch (const model::FatalError& problem) {
      return problem.what();
    }
    return {};
  };
  const auto parts = [](std::size_t count) {
    return Mime + Multipart("mixed", Strings(count, Part(Plain, "x")));
  };
  EXPECT_EQ(error(parts(mail::PartBound - 1)), "") << "they and what holds them";
  EXPECT_THAT(error(parts(mail::PartBound)), HasSubstr("more than 200 parts"));
  const auto nested = [](int depth) {
    std::string bytes = Mime;
    for (int i = 0; i < depth; ++i)
      bytes += "Content-Type: message/rfc822\n\n";
    return bytes + "\nA Par H\n";
  };
  EXPECT_EQ(error(nested(mail::DepthBound)), "");
  EXPECT_THAT(error(nested(100'000)), HasSubstr("more than 20 deep"));
  EXPECT_THAT(error(Mime + std::string(mail::MailByteBound, 'x')), HasSubstr("bytes of mail"));
  std::string box;
  for (std::size_t i = 0; i <= mail::MailBound; ++i)
    box += "From a@b Mon Jan 1 10:00:00 2024\nFrom: a@b\n\n";
  EXPECT_EQ(error(box), "There are 1001 mails; at most 1000 are read.");
}

TEST(HtmlLines, AreThoseThatABrowserShows) {
  const std::vector<std::pair<std::string_view, std::string_view>> cases{
      {"<html><head><style>p {}</style></head>\n<body><p class=x>A Mar S\nA Par -<br>Bur</p>"
       "<div>x</div></body>",
       "A Mar S A Par -\nBur\nx\n"},
      {"<table><tr><td>A&nbsp;Par</td><td>- Bur</td></tr><tr><td>x", "A\xC2\xA0Par - Bur\nx"},
      {"<p>A <s>Par</s> <span style='text-decoration:line-through'><span>x</span>Bur<br>A</span> H",
       "A <s>Par</s> <s>xBur</s>\n<s>A</s> H"},
      {"<p>x<blockquote type=cite><p>A &lt;b&gt; &rarr; &auml;</blockquote>y",
       "x\n<blockquote>\nA &lt;b&gt; \xE2\x86\x92 a\n</blockquote>\ny"},
      {"<pre>A\n B</pre><p>x\ny <tom@example.org> <- A < b",
       "A\n B\nx y <tom@example.org> <- A < b"},
      {"<b>A Par</b>\nA Mar<!-- <p> -->", "A Par\nA Mar"},
      {"<p>x<style>y<!-- z", "xy<!-- z"},
  };
  for (const auto& [html, lines] : cases)
    EXPECT_EQ(mail::HtmlLines(html), lines) << html;
}

}  // namespace
}  // namespace orb::tests
