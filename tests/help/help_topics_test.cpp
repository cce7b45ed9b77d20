#include "help/help_topics.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using help::HelpBlockForm;
using help::HelpSpanForm;
using help::HelpTopics;

TEST(HelpTopics, FileIsReadAsWritten) {
  const HelpTopics topics = help::ReadHelpTopics(
      "before\n- the first\n%One\r\n\r\nA paragraph\r\nruns "
      "on.\r\nTitle\r\n-----\r\n\r\nTitle\r\n-----\r\n"
      "- item\n  goes on\n- next\n\n    A  b\n      c\n%Tw\xf6 (%)\r- not%\r    x");
  ASSERT_EQ(topics.size(), 2U);
  EXPECT_EQ(topics[0].Caption, "One");
  EXPECT_EQ(topics[1].Caption, "Tw\xf6 (%)");
  EXPECT_EQ(help::FindHelpTopic(topics, "Tw\xf6 (%)"), 1U);
  EXPECT_FALSE(help::FindHelpTopic(topics, "one"));

  std::string drawn;
  for (const help::HelpBlock& block : help::HelpBlocks(topics[0].Text + "\n" + topics[1].Text))
    drawn += "PHIL"[static_cast<int>(block.Form)] + ("<" + block.Text + ">");
  EXPECT_EQ(
      drawn,
      "P<A paragraph runs on. Title ----->H<Title>I<item goes on>I<next>L<A  b\n  c>I<not% x>");
}

TEST(HelpTopics, AreNotMoreThanCanBeSearched) {
  std::string bytes;
  for (int i = 0; i < 502; ++i)
    bytes += "%" + std::to_string(i) + "\n";
  const HelpTopics topics = help::ReadHelpTopics(bytes);
  ASSERT_EQ(topics.size(), 500U);
  EXPECT_EQ(topics.back().Text, "%500\n%501\n");
}

TEST(HelpTopics, MarksThatMeanNothingStayText) {
  const HelpTopics topics = help::ReadHelpTopics("%Here\n%There");
  const std::vector<std::pair<std::string, std::string>> cases{
      {"see [There].", "P(see )L(There)P(.)"},
      {"[ FRA A(Par) - Bur ] [there]", "P([ FRA A(Par) - Bur ] [there])"},
      {"`A(Par) *` or *OK*", "T(A(Par) *)P( or )N(OK)"},
      {"2 * 3, ** `` [Here", "P(2 )N( 3, )P(* `` [Here)"},
      {"", ""}};
  for (const auto& [text, spans] : cases) {
    std::string drawn;
    for (const help::HelpSpan& span : help::HelpSpans(text, topics))
      drawn += "PTNL"[static_cast<int>(span.Form)] + ("(" + span.Text + ")");
    EXPECT_EQ(drawn, spans) << text;
  }
}

TEST(HelpTopics, AnyBytesAreReadWithNoCharacterLost) {
  std::mt19937 random(7);
  const std::string marks = "%-[]*` \r\n\t\x80\xff";
  for (int round = 0; round < 300; ++round) {
    std::string bytes = "%[";
    for (int i = 0; i < 400; ++i) {
      const auto number = random();
      bytes += number % 3 == 0 ? static_cast<char>(number >> 8) : marks[number % marks.size()];
    }
    const HelpTopics topics = help::ReadHelpTopics(bytes);
    for (const help::HelpTopic& topic : topics) {
      for (const help::HelpBlock& block : help::HelpBlocks(topic.Text)) {
        std::size_t kept = 0;
        for (const help::HelpSpan& span : help::HelpSpans(block.Text, topics))
          kept += span.Text.size() + (span.Form == HelpSpanForm::Plain ? 0 : 2);
        EXPECT_EQ(kept, block.Text.size());
        EXPECT_FALSE(block.Text.empty() && block.Form != HelpBlockForm::Item);
      }
    }
  }
}

}  // namespace
}  // namespace orb::tests
