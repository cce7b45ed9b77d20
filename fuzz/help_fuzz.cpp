#include "help/help_topics.h"
#include "support/fuzzing.h"

#include <algorithm>

// The input is a help file.

namespace orb::fuzz {
namespace {

using help::HelpSpanForm;

/// A run with its marks, as it stood in the text.
std::string Marked(const help::HelpSpan& span) {
  switch (span.Form) {
    case HelpSpanForm::Typed:
      return '`' + span.Text + '`';
    case HelpSpanForm::Name:
      return '*' + span.Text + '*';
    case HelpSpanForm::Link:
      return '[' + span.Text + ']';
    default:
      return span.Text;
  }
}

void CheckSpans(const std::string& text, const help::HelpTopics& topics) {
  std::string all;
  for (const help::HelpSpan& span : help::HelpSpans(text, topics)) {
    Require(!span.Text.empty(), "an empty run", text);
    const bool isLink = span.Form == HelpSpanForm::Link;
    Require(!isLink || help::FindHelpTopic(topics, span.Text), "a link to nowhere", span.Text);
    all += Marked(span);
  }
  Require(all == text, "the runs are not the text", text);
}

std::size_t CountLetters(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char c) { return std::string_view(" \t\r\n-").find(c) == std::string_view::npos; }));
}

void CheckTopic(const help::HelpTopic& topic, const help::HelpTopics& topics) {
  std::size_t letters = 0;
  for (const help::HelpBlock& block : help::HelpBlocks(topic.Text)) {
    letters += CountLetters(block.Text);
    if (block.Form != help::HelpBlockForm::Literal) CheckSpans(block.Text, topics);
  }
  Require(letters == CountLetters(topic.Text), "the blocks are not the text", topic.Text);
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const orb::help::HelpTopics topics = orb::help::ReadHelpTopics(orb::fuzz::Text(data, size));
  for (const orb::help::HelpTopic& topic : topics)
    orb::fuzz::CheckTopic(topic, topics);
  return 0;
}
