#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orb::help {

// The help file holds 8-bit text. A line that begins with "%" starts a topic, and the rest of the
// line is its caption; lines before the first topic are ignored. In the text of a topic
//
//   - a blank line ends a paragraph; the lines of a paragraph run on,
//   - a paragraph of one line that is underlined with "---" is a heading,
//   - "- " begins an item of a list, which may run on over the next lines,
//   - lines indented by four blanks or more stand as they are,
//   - `text` is something to type, *text* the name of something to be found in the window,
//   - [caption] is a link when it names a topic.
//
// What is none of these is plain text, so that every file can be shown. A mark that is not closed
// within 200 characters is none.

/// The name of the help file in the data directory.
constexpr std::string_view HelpFileName = "orbhelp.txt";

/// A topic of the help: what menus and links call it, and its text with the marks above.
struct HelpTopic {
  std::string Caption;
  std::string Text;
};

using HelpTopics = std::vector<HelpTopic>;

/// The most topics that a file can have; what looks like more of them is text of the last one.
constexpr std::size_t HelpTopicBound = 500;

/// The topics of a help file in file order.
HelpTopics ReadHelpTopics(std::string_view bytes);

/// The topics of the help file in a directory. Throws FileError when it cannot be read.
HelpTopics LoadHelpTopics(const std::filesystem::path& directory);

/// The position of the first topic with this caption, from 0.
std::optional<std::size_t> FindHelpTopic(const HelpTopics& topics, std::string_view caption);

enum class HelpBlockForm { Paragraph, Heading, Item, Literal };

/// A part of a topic's text. The lines of a literal block are separated by "\n" and have lost four
/// blanks each; the lines of the others are run together with their marks kept for HelpSpans.
struct HelpBlock {
  HelpBlockForm Form = HelpBlockForm::Paragraph;
  std::string Text;
};

/// The parts of a topic's text in order.
std::vector<HelpBlock> HelpBlocks(std::string_view text);

enum class HelpSpanForm { Plain, Typed, Name, Link };

/// A run of characters of one kind. A link has the caption of its topic as its text.
struct HelpSpan {
  HelpSpanForm Form = HelpSpanForm::Plain;
  std::string Text;
};

/// The runs of a block that is not literal, without the marks.
std::vector<HelpSpan> HelpSpans(std::string_view text, const HelpTopics& topics);

}  // namespace orb::help
