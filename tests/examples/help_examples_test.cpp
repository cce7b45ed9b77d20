#include "adjudication/stages.h"
#include "help/help_topics.h"
#include "model/new_game.h"
#include "model/seasons.h"
#include "support/boards.h"
#include "support/directories.h"
#include "support/scripted_messages.h"
#include "text/strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using help::HelpTopic;
using model::GameState;
using testing::Contains;
using testing::Each;
using testing::HasSubstr;

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty())
    lines.emplace_back(text::NextLine(text));
  return lines;
}

/// The blocks of lines that stand as they are.
std::vector<std::string> Blocks(const HelpTopic& topic) {
  std::vector<std::string> texts;
  for (const help::HelpBlock& block : help::HelpBlocks(topic.Text)) {
    if (block.Form == help::HelpBlockForm::Literal) texts.push_back(block.Text);
  }
  return texts;
}

/// An example: under each heading ("Report:") its lines, or what follows it, separated by commas.
using Example = std::map<std::string, std::vector<std::string>>;

Example ReadExample(const std::string& block) {
  Example example;
  std::vector<std::string>* section = nullptr;
  for (const std::string& line : LinesOf(block)) {
    const std::size_t colon = line.find(':');
    if (line.front() == ' ' || line.front() == '[' || colon == std::string::npos) {
      if (section != nullptr) section->push_back(line);
      continue;
    }
    section = &example[line.substr(0, colon)];
    std::string_view rest = std::string_view(line).substr(colon + 1);
    while (!rest.empty())
      section->emplace_back(text::Trim(text::NextField(rest)));
  }
  return example;
}

/// The order that a line of a report tells of.
std::string OrderIn(const std::string& reportLine) {
  const std::string text = reportLine.substr(2);
  return text.substr(0, text.find(reportLine.front() == '[' ? " ]" : "  "));
}

std::vector<std::string> Trimmed(std::vector<std::string> lines) {
  for (std::string& line : lines)
    line = text::Trim(line);
  return lines;
}

GameState SetUp(Example& example) {
  const bool adjusting = example.count("Adjustment orders") != 0;
  GameState game = EmptyBoard("Autumn", adjusting ? "adjustments" : "moves");
  for (const std::string& unit : example["Also there"])
    AddDrawnUnit(game, unit);
  if (adjusting) {
    for (int p = 1; p <= game.Provinces.Count(); ++p)
      game.Provinces[p].Owner = game.Map->Provinces[p].HomeCountry;
    game.AdjustmentsList = Trimmed(example["Adjustment orders"]);
    for (const std::string& order : game.AdjustmentsList) {
      const std::size_t verb = order.find(" disband ");
      if (verb != std::string::npos)
        AddDrawnUnit(game, order.substr(0, 4) + order.substr(verb + 9));
    }
    return game;
  }
  for (const std::string& line : example["Report"]) {
    game.OrdersList.push_back(OrderIn(line));
    AddDrawnUnit(game, game.OrdersList.back());
  }
  return game;
}

void CheckExample(Example example) {
  GameState game = SetUp(example);
  ScriptedMessages messages;
  adjudication::ResolveStage(game, messages);
  game.RetreatsList = Trimmed(example["Retreat orders"]);
  if (!game.RetreatsList.empty()) adjudication::ResolveStage(game, messages);

  EXPECT_EQ(Trimmed(Lines(game.ReportLines)), Trimmed(example["Report"]));
  std::vector<std::string> said = messages.Questions;
  for (const auto& [text, icon] : messages.Shown)
    said.push_back(text);
  for (std::string& text : said)
    std::replace(text.begin(), text.end(), '\r', ' ');
  for (const std::string& message : Trimmed(example["Message"]))
    EXPECT_THAT(said, Contains(message));
  for (const std::string& unit : example["Afterwards"])
    EXPECT_THAT(LinesOf(DrawUnits(game)), Contains(unit));
}

TEST(HelpExamples, ComeOutAsTheHelpSays) {
  int count = 0;
  for (const HelpTopic& topic : help::LoadHelpTopics(DataDirectory())) {
    for (const std::string& block : Blocks(topic)) {
      Example example = ReadExample(block);
      if (example.count("Report") == 0 && example.count("Message") == 0) continue;
      SCOPED_TRACE(topic.Caption + "\n" + block);
      CheckExample(example);
      ++count;
    }
  }
  EXPECT_GE(count, 23);
}

/// A mark that is left over is one that was not closed, or a link to no topic.
TEST(HelpExamples, EveryMarkAndEveryLinkIsGood) {
  const help::HelpTopics topics = help::LoadHelpTopics(DataDirectory());
  for (const HelpTopic& topic : topics) {
    for (const help::HelpBlock& block : help::HelpBlocks(topic.Text)) {
      if (block.Form == help::HelpBlockForm::Literal) continue;
      for (const help::HelpSpan& span : help::HelpSpans(block.Text, topics))
        EXPECT_EQ(span.Text.find_first_of("[]*`%"), std::string::npos) << span.Text;
    }
  }
  for (const char* opened : {"Entering orders", "Retreats", "Adjustments", "Reading the report"})
    EXPECT_TRUE(help::FindHelpTopic(topics, opened)) << opened;
}

/// Every block of the first topic that holds orders is a stage of the year told there.
TEST(HelpExamples, TheFirstYearGoesAsTold) {
  const help::HelpTopics topics = help::LoadHelpTopics(DataDirectory());
  ASSERT_FALSE(topics.empty());
  GameState game = model::EmptyGame(RealMap());
  model::NewGame(game, DataDirectory());
  ScriptedMessages messages({model::Answer::YesToAll});
  for (const std::string& block : Blocks(topics.front())) {
    if (block.find('(') == std::string::npos) continue;
    if (game.Stage == model::Stage::Finished) model::NextSeason(game);
    OrdersOf(game) = LinesOf(block);
    adjudication::ResolveStage(game, messages);
    for (const std::string& line : game.ReportLines)
      EXPECT_EQ(line.front() == '[', line.starts_with("[ FRA A(Bur) hold ]")) << line;
  }
  EXPECT_EQ(game.Season, "Autumn");
  EXPECT_EQ(game.Stage, model::Stage::Finished);
  EXPECT_THAT(messages.Questions, Each(HasSubstr("unordered")));
  for (const char* unit : {"FRA A(Bel)", "FRA F(Bre)", "FRA A(Par)", "FRA A(Mar)", "GER F(Kie)"})
    EXPECT_THAT(LinesOf(DrawUnits(game)), Contains(unit));
}

}  // namespace
}  // namespace orb::tests
