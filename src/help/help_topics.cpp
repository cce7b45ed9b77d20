#include "help/help_topics.h"

#include "model/files.h"
#include "text/strings.h"

#include <algorithm>

namespace orb::help {
namespace {

constexpr std::size_t LiteralIndent = 4;
constexpr std::size_t LongestRun = 200;  // else an unclosed mark would cost a search to the end

bool IsBlank(std::string_view line) {
  return line.find_first_not_of(" \t") == std::string_view::npos;
}

bool IsUnderline(std::string_view line) {
  return line.size() >= 3 && line.find_first_not_of('-') == std::string_view::npos;
}

/// Adds a line to the block that is being read, or begins the next one.
class BlockReader {
 public:
  void Add(std::string_view line) {
    if (IsBlank(line)) {
      EndBlock();
    } else if (line.find_first_not_of(' ') >= LiteralIndent && form_ != HelpBlockForm::Item) {
      AddTo(HelpBlockForm::Literal, line.substr(LiteralIndent), "\n");
    } else if (line.substr(0, 2) == "- ") {
      EndBlock();
      AddTo(HelpBlockForm::Item, text::Trim(line.substr(2)), " ");
    } else if (lines_ == 1 && form_ == HelpBlockForm::Paragraph && IsUnderline(line)) {
      blocks_.back().Form = HelpBlockForm::Heading;
      EndBlock();
    } else {
      const bool inItem = form_ == HelpBlockForm::Item;
      AddTo(inItem ? form_ : HelpBlockForm::Paragraph, text::Trim(line), " ");
    }
  }

  std::vector<HelpBlock> Blocks() && { return std::move(blocks_); }

 private:
  void EndBlock() {
    lines_ = 0;
    form_ = HelpBlockForm::Paragraph;
  }

  void AddTo(HelpBlockForm form, std::string_view line, std::string_view joint) {
    if (lines_ == 0 || form != form_) {
      EndBlock();
      blocks_.push_back({form, {}});
      form_ = form;
    }
    if (lines_++ > 0) blocks_.back().Text += joint;
    blocks_.back().Text += line;
  }

  std::vector<HelpBlock> blocks_;
  HelpBlockForm form_ = HelpBlockForm::Paragraph;
  int lines_ = 0;  ///< of the block being read
};

/// The marked run at the start of the text: its form, its text and how many bytes it takes with
/// its marks; nothing when no mark begins there.
struct MarkedRun {
  HelpSpan Span;
  std::size_t Size = 0;
};

std::optional<MarkedRun> RunBetween(std::string_view text, char close, HelpSpanForm form) {
  const std::size_t end = text.substr(0, LongestRun).find(close, 1);
  if (end == std::string_view::npos || end == 1) return std::nullopt;
  return MarkedRun{{form, std::string(text.substr(1, end - 1))}, end + 1};
}

std::optional<MarkedRun> MarkedRunAt(std::string_view text, const HelpTopics& topics) {
  std::optional<MarkedRun> run;
  switch (text.front()) {
    case '`':
      return RunBetween(text, '`', HelpSpanForm::Typed);
    case '*':
      return RunBetween(text, '*', HelpSpanForm::Name);
    case '[':
      run = RunBetween(text, ']', HelpSpanForm::Link);
      if (run && !FindHelpTopic(topics, run->Span.Text)) run.reset();
      return run;
    default:
      return run;
  }
}

}  // namespace

HelpTopics ReadHelpTopics(std::string_view bytes) {
  HelpTopics topics;
  while (!bytes.empty()) {
    const std::string_view line = text::NextLine(bytes);
    // Each mark is held against each caption: without a bound, 64 kB could take seconds.
    if (line.substr(0, 1) == "%" && topics.size() < HelpTopicBound) {
      topics.push_back({std::string(line.substr(1)), {}});
    } else if (!topics.empty()) {
      topics.back().Text.append(line).append("\n");
    }
  }
  return topics;
}

HelpTopics LoadHelpTopics(const std::filesystem::path& directory) {
  return ReadHelpTopics(model::ReadFile(directory / HelpFileName));
}

std::optional<std::size_t> FindHelpTopic(const HelpTopics& topics, std::string_view caption) {
  const auto found = std::find_if(topics.begin(), topics.end(),
                                  [&](const HelpTopic& topic) { return topic.Caption == caption; });
  if (found == topics.end()) return std::nullopt;
  return static_cast<std::size_t>(found - topics.begin());
}

std::vector<HelpBlock> HelpBlocks(std::string_view text) {
  BlockReader reader;
  while (!text.empty())
    reader.Add(text::NextLine(text));
  return std::move(reader).Blocks();
}

std::vector<HelpSpan> HelpSpans(std::string_view text, const HelpTopics& topics) {
  std::vector<HelpSpan> spans;
  std::string plain;
  const auto endPlain = [&] {
    if (!plain.empty()) spans.push_back({HelpSpanForm::Plain, std::move(plain)});
    plain.clear();
  };
  while (!text.empty()) {
    if (auto run = MarkedRunAt(text, topics)) {
      endPlain();
      spans.push_back(std::move(run->Span));
      text.remove_prefix(run->Size);
    } else {
      plain += text.front();
      text.remove_prefix(1);
    }
  }
  endPlain();
  return spans;
}

}  // namespace orb::help
