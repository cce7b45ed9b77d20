#include "orders/exchange/read_orders.h"

#include "model/new_game.h"
#include "support/boards.h"
#include "support/directories.h"
#include "support/drawn_cases.h"
#include "text/strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using exchange::LineKind;
using exchange::ReadingOptions;
using exchange::ReadLine;

model::GameState DrawnGame(const DrawnCase& drawn) {
  model::GameState game = EmptyBoard("Autumn", "moves");
  if (drawn.Note("units") == "start") {
    model::NewGame(game, DataDirectory());
  } else {
    const std::string units = drawn.Note("units");
    for (std::string_view rest = units; !rest.empty();)
      AddDrawnUnit(game, text::Trim(text::NextField(rest)));
  }
  game.Stage = model::StageOf(drawn.Note("stage", "moves"));
  return game;
}

/// The text with its "\x96" as bytes.
std::string WithBytes(std::string text) {
  for (auto at = text.find("\\x"); at != std::string::npos; at = text.find("\\x", at + 1))
    text.replace(at, 4, 1, static_cast<char>(std::stoi(text.substr(at + 2, 2), nullptr, 16)));
  for (auto at = text.find("\\t"); at != std::string::npos; at = text.find("\\t", at + 1))
    text.replace(at, 2, 1, '\t');
  return text;
}

/// What was understood, as the file of cases has it.
std::string Understood(const ReadLine& line, std::string_view text) {
  switch (line.Kind) {
    case LineKind::Order:
      return line.Reason.empty() ? line.Order : line.Order + " !" + line.Reason;
    case LineKind::Doubtful:
      return "~" + line.Order + " [" +
             std::string(text.substr(line.ReasonPlace.Offset, line.ReasonPlace.Length)) + "] " +
             line.Reason;
    case LineKind::Replaced:
      return "replaced " + line.Order;
    case LineKind::Waive:
      return "waive";
    case LineKind::Heading:
      return line.Power.empty() ? "heading" : std::string("heading ").append(line.Power);
    case LineKind::PassedOver:
      return "pass";
    case LineKind::NotUnderstood:
      return "? [" + std::string(text.substr(line.ReasonPlace.Offset, line.ReasonPlace.Length)) +
             "] " + line.Reason;
    case LineKind::Ambiguous:
      break;
  }
  std::string candidates;
  for (const std::string& candidate : line.Candidates)
    candidates.append(candidates.empty() ? "" : " | ").append(candidate);
  return candidates;
}

std::string Understood(const std::vector<ReadLine>& lines, int number, std::string_view text) {
  std::string all;
  for (const ReadLine& line : lines) {
    EXPECT_EQ(text.substr(line.Place.Offset, line.Place.Length), line.Written);
    if (line.Number == number) all.append(all.empty() ? "" : "; ").append(Understood(line, text));
  }
  return all;
}

TEST(ReadOrders, AsPeopleWriteThem) {
  for (const DrawnCase& drawn : LoadDrawnCases("orders/written_orders.txt")) {
    SCOPED_TRACE(drawn.Name);
    const model::GameState game = DrawnGame(drawn);
    std::vector<std::string> written;
    std::vector<std::string> expected;
    std::string together;
    for (const auto& [line, understood] : Rows(drawn)) {
      written.push_back(WithBytes(line));
      expected.push_back(understood);
      together += written.back() + "\n";
    }
    const ReadingOptions options{drawn.Note("power"), {}};
    for (std::size_t i = 0; i < written.size(); ++i) {
      const bool alone = !drawn.Has("together");
      const std::string& text = alone ? written[i] : together;
      EXPECT_EQ(Understood(exchange::ReadOrders(game, text, options),
                           alone ? 1 : static_cast<int>(i) + 1, text),
                expected[i])
          << written[i];
    }
  }
}

/// The text with each "%" in its place.
std::vector<std::string> Filled(const std::vector<std::string>& forms, const std::string& words) {
  std::vector<std::string> texts;
  texts.reserve(forms.size());
  for (std::string form : forms)
    texts.push_back(form.replace(form.find('%'), 1, words));
  return texts;
}

TEST(ReadOrders, WordsAroundOrdersThatMayChangeThem) {
  const std::string orders = "A Par - Bur\nA Mar - Spa\nF Bre - MAO\n";
  const std::map<std::string, std::vector<std::string>> formsOf{
      {"a title above", {"%\n" + orders}},
      {"a line below", {orders + "%", orders + "\n%"}},
      {"words beside",
       {"A Par - Bur (%)", "A Par - Bur %", "A Par - Bur, %", "A Par - Bur -- %",
        "A Par - Bur // %", "A Par - Bur [%]", "A Par - Bur; %",
        "A Mar - Spa, A Par - Bur (%), F Bre - MAO"}}};
  model::GameState game = EmptyBoard("Spring", "moves");
  model::NewGame(game, DataDirectory());
  for (const DrawnCase& drawn : LoadDrawnCases("orders/around_orders.txt")) {
    const std::string kind = drawn.Name.substr(drawn.Name.find(": ") + 2);
    const bool areSure = drawn.Name.starts_with("sure");
    for (const std::string& words : drawn.Drawing) {
      for (const std::string& text : Filled(formsOf.at(kind), words)) {
        for (const ReadLine& read : exchange::ReadOrders(game, text, {"FRA", {}})) {
          const bool isOther = kind == "words beside" && read.Order != "FRA A(Par) - Bur";
          if (!read.Order.empty() && !isOther) {
            EXPECT_EQ(read.Kind == LineKind::Order, areSure) << text;
          }
        }
      }
    }
  }
}

TEST(TextRepairs, EveryShippedPairHelps) {
  const auto repairs = exchange::ReadTextRepairs(DataDirectory());
  const DrawnCase drawn = LoadDrawnCases("orders/repairs.txt").front();
  const model::GameState game = DrawnGame(drawn);
  std::string all;
  for (const auto& row : Rows(drawn)) {
    const std::string& written = row.first;
    const std::string& order = row.second;
    const auto read = [&](const ReadingOptions& options) {
      return Understood(exchange::ReadOrders(game, written, options), 1, written);
    };
    EXPECT_EQ(read({{}, repairs}), order) << written;
    EXPECT_NE(read({}), order) << written;
    all += text::LowerCase(written) + "\n";
  }
  for (const exchange::TextRepair& repair : repairs)
    EXPECT_NE(all.find(repair.From), std::string::npos) << repair.From;
}

}  // namespace
}  // namespace orb::tests
