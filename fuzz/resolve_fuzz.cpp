#include "adjudication/list_check.h"
#include "model/game_file.h"
#include "model/lookups.h"
#include "orders/order_list.h"
#include "render/map_view.h"
#include "session/commands.h"
#include "session/queries.h"
#include "session/session.h"
#include "session/trial.h"
#include "session/what_if.h"
#include "support/blank_surface.h"
#include "support/drawn_game.h"
#include "support/fuzzing.h"
#include "text/strings.h"

#include <algorithm>
#include <functional>

// The input's first byte tells how the game goes on (Course), and whether a game file follows, up
// to a NUL, and then order lists, parted by blank lines; or bytes by which a game and its orders
// are chosen. Stage after stage is resolved by either rules with yes to everything; then comes the
// next season, or the stage is taken back.

namespace orb::fuzz {
namespace {

using model::Stage;
using session::Session;
using session::Situation;

std::string AllOf(const Situation& now) {
  std::string text = Described(now.Game);
  text.append("\nnotes ").append(std::to_string(now.Notes.size()));
  text.append("\noutcomes ").append(std::to_string(now.Outcomes.size()));
  return text;
}

/// Runs a command; whether it was done. One that throws changes nothing.
bool Run(Session& game, const session::Command& command) {
  const std::string before = AllOf(game.Now());
  bool isDone = false;
  if (!IsAccepted([&] { isDone = game.Run(command).Done; })) {
    Require(AllOf(game.Now()) == before, "a refused command changed the game");
  }
  return isDone;
}

/// Whether no two units stand in one place, those aside that have to leave.
bool IsOneInAPlace(const model::GameState& game) {
  std::vector<int> taken;
  for (const model::Unit& unit : game.Units) {
    if (unit.Status == model::Dislodged) continue;
    const int place = model::ProvinceOf(*game.Map, unit.Location);
    if (std::ranges::find(taken, place) != taken.end()) return false;
    taken.push_back(place);
  }
  return true;
}

bool FindsNothing(const adjudication::ListCheck& check) {
  return check.Unordered.empty() && check.Powers.empty() &&
         std::ranges::all_of(check.Lines, [](const auto& problems) { return problems.empty(); });
}

void Draw(const Situation& now) {
  BlankSurface surface;
  render::RenderMap(now.Game, {settings::MapMode::Colour, true, true, true}, {}, surface,
                    session::SeasonOrders(now));
}

void CheckResolved(const Situation& before, const Situation& after) {
  const model::GameState& game = after.Game;
  CheckGame(game);
  const auto lines = static_cast<std::size_t>(game.ReportLines.Count());
  Require(after.Notes.size() == lines, "notes that do not fit the report");
  Require(game.Stage != before.Game.Stage, "the stage was resolved and is still there");
  if (before.Game.Stage == Stage::Moves) {
    Require(game.Units.Count() == before.Game.Units.Count(), "moves took or gave a unit");
  } else {
    Require(std::ranges::none_of(game.Units,
                                 [](const auto& unit) {
                                   return unit.Status == model::Dislodged && !unit.Location.empty();
                                 }) ||
                before.Game.Stage == Stage::Adjustments,
            "a unit is still dislodged");
  }
  Require(IsOneInAPlace(game) || !IsOneInAPlace(before.Game), "two units in one place",
          Described(before.Game) + "\n--- became\n" + Described(game));
}

/// Trying a stage out shows what resolving it with yes to everything makes of it.
void CheckTrial(const Situation& before, const Situation& after) {
  Require(IsAccepted([&] {
            const Situation tried = session::TryOut(before, session::Noting::None);
            Require(Described(tried.Game) == Described(after.Game), "tried out otherwise",
                    Described(before.Game));
          }),
          "resolved, but not to be tried out", Described(before.Game));
}

/// What is asked about a list besides its check: how the other rules read its lines, and which
/// other orders would have changed what comes of the first one.
void AskAbout(const Situation& before, bool isWhatIf) {
  const std::vector<std::string>& list = orders::StageList(before.Game);
  IsAccepted([&] {
    Require(session::OtherReadings(before).size() == list.size(), "lines not read otherwise");
  });
  // The time goes with the square of the units.
  constexpr int few = 8;
  if (!isWhatIf || list.empty() || before.Game.Units.Count() > few) return;
  IsAccepted([&] {
    const session::Question question = session::Ask(before, list[0]);
    for (const session::Alternative& alternative : session::SingleChanges(question)) {
      Require(alternative.Orders.size() == 1, "more than one change", list[0]);
      Require(!alternative.Sentence.empty(), "a change without its outcome", list[0]);
    }
  });
}

/// Resolves the stage; whether it was done.
bool ResolveStage(Session& game, session::Comparing comparing) {
  const Situation before = game.Now();
  adjudication::ListCheck check;
  const bool isChecked = IsAccepted([&] { check = session::CheckOrders(before); });
  if (isChecked) {
    Require(check.Lines.size() == orders::StageList(before.Game).size(), "lines not checked");
  }
  YesToAll messages;
  const bool isDone = Run(game, [&](Situation& now) {
    return session::Resolve(now, messages, session::Noting::Full, comparing);
  });
  const bool isAsked = messages.Count() > 0 && messages.Last() != "Convoys are not fully checked.";
  const bool asksNothing =
      before.Rules == session::Rules::Usual || (isChecked && FindsNothing(check));
  Require(!isAsked || !asksNothing, "asked in vain: " + messages.Last(), Described(before.Game));
  if (!isDone) return false;
  CheckResolved(before, game.Now());
  CheckTrial(before, game.Now());
  return true;
}

/// What the first byte of the input tells.
struct Course {
  explicit Course(std::uint8_t byte)
      : IsFile((byte & 1U) != 0),
        TakesBack((byte & 2U) != 0),
        IsDrawn((byte & 4U) != 0),
        Rules((byte & 8U) != 0 ? session::Rules::Usual : session::Rules::Orb),
        Comparing((byte & 16U) != 0 ? session::Comparing::Yes : session::Comparing::No),
        IsAsked((byte & 32U) != 0) {}

  bool IsFile, TakesBack, IsDrawn;
  session::Rules Rules;
  session::Comparing Comparing;
  bool IsAsked;
};

/// Plays on as far as it goes. `file` puts the orders of a stage into the situation.
void Play(Session game, const std::function<void(Situation&)>& file, Course course) {
  constexpr int longest = 6;
  Run(game, [&](Situation& now) { session::SetRules(now, course.Rules); });
  for (int i = 0; i < longest; ++i) {
    Run(game, file);
    if (!session::TakesOrders(game.Now().Game)) break;
    // Drawing takes longer than all the rest.
    if (i == 0 && course.IsDrawn) Draw(game.Now());
    if (course.IsAsked) AskAbout(game.Now(), i == 0);
    if (!ResolveStage(game, course.Comparing)) break;
    if (i == 0 && course.IsDrawn) Draw(game.Now());
    if (course.TakesBack) {
      YesToAll messages;
      Run(game, [&](Situation& now) { return session::UndoSeason(now, messages); });
      CheckGame(game.Now().Game);
    } else if (session::IsFinished(game.Now())) {
      Run(game, session::NextSeason);
      CheckGame(game.Now().Game);
    }
  }
}

/// The next list in a text: its lines up to a blank one, without what no field can hold.
std::vector<std::string> NextList(std::string_view& text) {
  std::vector<std::string> list;
  while (!text.empty()) {
    std::string line(text::NextLine(text));
    if (line.empty()) break;
    std::ranges::replace(line, '"', '\'');
    list.push_back(std::move(line));
  }
  return list;
}

void PlayFile(std::string_view bytes, std::string_view text, Course course) {
  model::GameState game = StartingGame();
  bool isRead = false;
  IsAccepted([&] { isRead = !model::ParseGameFile(bytes, "game.orb", game); });
  if (!isRead) return;
  Play(
      Session({game}),
      [&](Situation& now) {
        // The file has orders of its own.
        if (!text.empty()) session::ReplaceOrders(now, NextList(text));
      },
      course);
}

void PlayDrawn(Choices next, Course course) {
  Play(
      Session({DrawnGame(next)}), [&](Situation& now) { FileDrawnOrders(now.Game, next); }, course);
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view input = orb::fuzz::Text(data + 1, size - 1);
  const orb::fuzz::Course course(data[0]);
  if (course.IsFile) {
    const auto parts = orb::fuzz::Parts(input, 2);
    orb::fuzz::PlayFile(parts[0], parts[1], course);
  } else {
    orb::fuzz::PlayDrawn(orb::fuzz::Choices(input), course);
  }
  return 0;
}
