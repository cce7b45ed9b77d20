#include "report/text_report.h"

#include "model/files.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orb::render {
namespace {

model::GameState SampleGame() {
  model::GameState game = tests::EmptyBoard("Autumn", "adjustments");
  game.Title = "Caf\xe9";
  game.Year = 1902;
  for (const char* unit : {"ENG F(NTH)", "FRA A(Bur) <Mun", "FRA A(Spa)", "ITA A(Rom)"})
    tests::AddDrawnUnit(game, unit);
  game.Units[4].Power = "XYZ";
  tests::Own(game, "ENG Lon Edi");
  tests::Own(game, "FRA Par Bur");
  game.OrdersList = {"ENG F(NTH) - Hol"};
  game.ReportLines.Append("  ENG F(NTH) hold  ");
  game.ReportLines.Append("[ FRA A(Bur) - Mun ]  dislodged");
  game.Countries[1].PlayerName = "Alice";
  game.TextLines.Append("See you.");
  return game;
}

TEST(TextReport, TellsTheWholeSituationButNoOrders) {
  EXPECT_EQ(report::TextReport(SampleGame()),
            "Caf\xe9\n====\n" + model::ReadFile(tests::TestFile("report/sample.txt")));
}

TEST(TextReport, BreaksLongLinesAndLosesNothing) {
  const std::string word(200, 'w');
  const std::string sentence =
      "one two three four five six seven eight nine ten eleven twelve "
      "thirteen fourteen fifteen";
  for (const std::string& text : {word, sentence, std::string(300, ' ') + "x", std::string(78, 'y'),
                                  std::string(12, '\t') + "z"}) {
    model::GameState game = SampleGame();
    game.Title = text;
    game.Season = text;
    game.Countries[1].PlayerName = text;
    game.TextLines.Append(text);
    game.ReportLines.Append("  " + text);
    const std::string report = report::TextReport(game);
    std::istringstream lines(report);
    for (std::string line; std::getline(lines, line);)
      EXPECT_TRUE(line.size() <= report::TextReportWidth && line.find('\t') == line.npos) << line;
    const auto letters = [](const std::string& s) {
      return std::count_if(s.begin(), s.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    };
    EXPECT_EQ(letters(report), letters(report::TextReport(SampleGame())) - letters("Caf") -
                                   letters("Autumn") - letters("Alice") + 5 * letters(text));
  }
}

TEST(TextReport, IsWrittenWithLineEndsForAnyEditor) {
  const tests::TemporaryDirectory directory;
  const model::GameState game = SampleGame();
  report::WriteTextReport(game, directory.Path() / "a02.txt");
  std::string expected;
  for (const char character : report::TextReport(game))
    expected += character == '\n' ? std::string("\r\n") : std::string(1, character);
  EXPECT_EQ(model::ReadFile(directory.Path() / "a02.txt"), expected);
}

}  // namespace
}  // namespace orb::render
