#include "serve/server.h"

#include "json/rapid/input.h"
#include "json/situation.h"

#include "model/files.h"
#include "model/game_file.h"
#include "session/commands.h"
#include "support/boards.h"
#include "support/directories.h"
#include "text/strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace orb::tests {
namespace {

using testing::HasSubstr;

const std::filesystem::path Examples = std::filesystem::path(ORB_SOURCE_DIR) / "examples";

/// The text of a member of each object in an array of the answer, a line each.
std::string Column(const std::string& answer, std::string_view array, std::string_view member) {
  std::string lines;
  const json::Document document(answer);
  document.Root().WithMember(array, [&](const json::Node& rows) {
    rows.Items([&](const json::Node& row) {
      row.WithMember(member, [&](const json::Node& text) { lines.append(text.Text()); });
      lines.append("\n");
    });
  });
  return lines;
}

/// The lines of an orders file, blank ones aside, as an array of JSON; the examples need no
/// escapes.
std::string JsonLines(std::string_view text) {
  std::string array = "[";
  while (!text.empty()) {
    const std::string_view line = text::NextLine(text);
    if (!line.empty()) array.append(array.size() > 1 ? ",\"" : "\"").append(line).append("\"");
  }
  return array + "]";
}

/// Whether each line of a text ends in the same line of another.
bool EndsEachLine(std::string_view text, std::string_view ends) {
  while (!text.empty() && !ends.empty()) {
    if (!text::NextLine(text).ends_with(text::NextLine(ends))) return false;
  }
  return text.empty() && ends.empty();
}

/// A request for a command about a game file.
std::string Request(const std::string& command, const std::string& game,
                    const std::string& members = "") {
  model::GameState read = model::EmptyGame(RealMap());
  EXPECT_FALSE(model::ParseGameFile(game, "game", read));
  std::string text = json::SituationText(read);
  text.pop_back();
  return text + ",\"command\":\"" + command + "\"" + members + "}";
}

/// The game file of the situation in an answer.
std::string GameIn(const std::string& answer) {
  model::GameState read = model::EmptyGame(RealMap());
  json::ReadSituation(answer, read);
  return model::FormatGameFile(read);
}

TEST(Server, GivesTheReportReasonsAndGameOfEveryStageOfTheExamples) {
  std::vector<std::filesystem::path> games;
  for (const auto& entry : std::filesystem::directory_iterator(Examples)) {
    if (entry.path().extension() == ".orb") games.push_back(entry.path());
  }
  std::ranges::sort(games);
  serve::Server server(DataDirectory(), "/nonexistent");
  int stages = 0;
  for (std::size_t i = 1; i < games.size(); ++i) {
    const auto file = [&](const char* extension) {
      return model::ReadFile(std::filesystem::path(games[i]).replace_extension(extension));
    };
    const std::string before = model::ReadFile(games[i - 1]);
    if (games[i].string().find("-0-start") != std::string::npos) {
      EXPECT_EQ(GameIn(server.Answer(Request("next", before))), file(".orb"));
      continue;
    }
    const std::string members = R"(,"yes":true,"reasons":true,"orders":)" + JsonLines(file(".txt"));
    const std::string answer = server.Answer(Request("resolve", before, members));
    EXPECT_EQ(Column(answer, "report", "text"), file(".report.txt")) << games[i];
    EXPECT_TRUE(EndsEachLine(file(".reasons.txt"), Column(answer, "report", "reason"))) << games[i];
    EXPECT_EQ(GameIn(answer), file(".orb"));
    ++stages;
  }
  EXPECT_GT(stages, 10);
}

TEST(Server, AnswersEachRequestByItself) {
  const std::string start = model::ReadFile(Examples / "1901-1-spring-0-start.orb");
  const struct {
    std::string Request, Answer;
  } cases[] = {
      {R"~({"command":"new","id":"a\u20ac","title":"T"})~",
       "\"id\":\"a\xE2\x82\xAC\",\"command\":\"new\",\"done\":true"},
      {R"~({"command":"new","blank":true,"id":-7})~", R"~("id":-7,"command":"new","done":true)~"},
      {R"~({"command":"new","id":18446744073709551615})~", R"~("id":18446744073709551615,)~"},
      {Request("possible", start),
       R"~({"power":"ENG","unit":"ENG F(Lon)","orders":["ENG F(Lon) hold",)~"},
      {Request("check", start, R"~(,"orders":["ENG F(Lon) - Mos"])~"),
       R"~({"text":"ENG F(Lon) - Mos","problems":["impossible move)~"},
      {Request("check", start, R"~(,"rules":"usual","orders":[])~"), R"~("unordered":["ENG )~"},
      {Request("resolve", start, R"~(,"orders":["?"])~"),
       R"~("done":false,"rules":"orb","stage":"moves","orders":["?"],"messages":[{"text":"Warning: ?\nsyntax error)~"},
      {Request("resolve", start, R"~(,"yes":true,"rules":"usual","orders":["FRA A(Par) - Bur"])~"),
       R"~({"power":"FRA","type":"A","location":"Par","order":"move","destination":"Bur","outcome":"succeeded"})~"},
      {Request("resolve", start, R"~(,"yes":true,"compare":true)~"), R"~("differences":[],)~"},
      {Request("map", start, R"~(,"mode":"grey","width":300)~"),
       R"~("error":"Maps are drawn by /nonexistent/orbdraw.so, which is missing.")~"},
      {Request("map", start, R"~(,"width":0)~"), R"~("error":"width: expected a whole number)~"},
      // What is wrong is told under the request's own id, and harms no other.
      {"", R"~("error":"This is no JSON: line 1, column 1:)~"},
      {"[1]", R"~("error":"The whole: expected an object, found an array.")~"},
      {R"~({"id":1})~", R"~("id":1,"done":false,"error":"The whole has no \"command\".")~"},
      {R"~({"id":1.5,"command":"new"})~",
       R"~("done":false,"error":"id: expected a text or a whole number, found a number.")~"},
      {R"~({"id":1,"id":2,"command":"new"})~",
       R"~("id":1,"done":false,"error":"id is there twice.")~"},
      {R"~({"id":1,"command":"undo"})~", R"~("error":"command: expected \"new\", \"resolve\",)~"},
      {R"~({"command":"new","orders":[]})~", R"~("error":"orders means nothing to \"new\".")~"},
      {R"~({"command":"next"})~", R"~("error":"The whole has no \"situation\".")~"},
      {Request("next", start), R"~("error":"The season is not finished)~"},
      {Request("resolve", start, R"~(,"orders":["a",1])~"),
       R"~("error":"orders[1]: expected a text, found 1.")~"},
  };
  serve::Server server(DataDirectory(), "/nonexistent");
  for (const auto& [request, part] : cases) {
    const std::string answer = server.Answer(request);
    EXPECT_THAT(answer, HasSubstr(part)) << request.substr(0, 200);
    EXPECT_EQ(answer.find('\n'), std::string::npos);
    EXPECT_NO_THROW(const json::Document document(answer)) << answer;
  }
}

}  // namespace
}  // namespace orb::tests
