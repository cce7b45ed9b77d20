#include "game.h"

#include "json/situation.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "orders/order_list.h"
#include "render/map_module.h"
#include "session/queries.h"
#include "session/rules.h"

#include <utility>

namespace orb::python {
namespace {

std::filesystem::path& Home() {
  static std::filesystem::path home;
  return home;
}

/// Loaded when it is first needed, and shared by all games.
const std::shared_ptr<const model::Map>& TheMap() {
  static const auto map = model::LoadMap(Home());
  return map;
}

std::shared_ptr<session::Situation> Empty() {
  auto situation = std::make_shared<session::Situation>();
  situation->Game = model::EmptyGame(TheMap());
  return situation;
}

session::Rules RulesOf(const std::string& name) {
  if (const auto rules = session::RulesNamed(name)) return *rules;
  throw model::FatalError("There are no rules \"" + name + "\": they are \"orb\" or \"usual\".");
}

/// Lines of a text that a message box shows are parted by CR alone.
std::string LastOf(const json::NotedMessages& messages, const char* otherwise) {
  return messages.All().empty() ? otherwise : messages.All().back().Text;
}

}  // namespace

void SetHome(const std::filesystem::path& home) {
  Home() = home;
}

Game Game::New(const std::optional<std::string>& title, bool isBlank) {
  const auto situation = Empty();
  isBlank ? session::BlankGame(*situation, Home()) : session::NewGame(*situation, Home());
  if (title) session::SetTitle(*situation, *title);
  return Game(situation);
}

Game Game::Read(const std::filesystem::path& file) {
  const auto situation = Empty();
  json::NotedMessages messages(false);
  if (!session::ReadGame(*situation, file, messages))
    throw model::FatalError(LastOf(messages, "The game cannot be read."));
  return Game(situation);
}

Game Game::FromBytes(const std::string& bytes) {
  const auto situation = Empty();
  if (const auto unknown = model::ParseGameFile(bytes, "The game", situation->Game))
    throw model::FatalError(model::UnknownProvinceText(*unknown));
  return Game(situation);
}

Game Game::FromJson(const std::string& text) {
  const auto situation = Empty();
  json::ReadSituation(text, situation->Game);
  return Game(situation);
}

template <class Command>
void Game::Change(const Command& command) {
  const auto next = std::make_shared<session::Situation>(*now_);
  command(*next);
  now_ = next;
}

void Game::Save(const std::filesystem::path& file) {
  Change([&](session::Situation& game) { session::SaveGameAs(game, file); });
}

std::string Game::ToBytes() const {
  return model::FormatGameFile(State());
}

std::vector<std::string> Game::Orders() const {
  return orders::StageList(State());
}

void Game::SetOrders(std::vector<std::string> lines) {
  Change([&](session::Situation& game) { session::ReplaceOrders(game, std::move(lines)); });
}

void Game::SetTitle(std::string title) {
  Change([&](session::Situation& game) { session::SetTitle(game, std::move(title)); });
}

Resolution Game::Resolve(std::optional<std::vector<std::string>> orders, const std::string& rules,
                         bool yes, bool reasons, bool compare) {
  const auto next = std::make_shared<session::Situation>(*now_);
  if (orders) session::ReplaceOrders(*next, std::move(*orders));
  session::SetRules(*next, RulesOf(rules));
  json::NotedMessages messages(yes);
  const model::Stage stage = next->Game.Stage;
  const bool isDone =
      session::Resolve(*next, messages, reasons ? session::Noting::Full : session::Noting::Outcomes,
                       compare ? session::Comparing::Yes : session::Comparing::No);
  if (!isDone) {
    std::optional<int> row;
    if (next->Stopped) row = next->Stopped->Row;
    throw Abandoned(LastOf(messages, "The stage cannot be resolved."), row);
  }
  now_ = next;
  return {now_, stage, messages.All()};
}

void Game::NextSeason() {
  Change(session::NextSeason);
}

void Game::UndoSeason() {
  Change([](session::Situation& game) {
    json::NotedMessages messages(true);
    if (!session::UndoSeason(game, messages))
      throw model::FatalError(LastOf(messages, "The season cannot be undone."));
  });
}

session::Situation Game::Asked(std::optional<std::vector<std::string>> orders,
                               const std::string& rules) const {
  session::Situation situation = *now_;
  if (orders) session::ReplaceOrders(situation, std::move(*orders));
  session::SetRules(situation, RulesOf(rules));
  return situation;
}

std::string Game::Draw(const Drawing& drawing, bool isSvg) const {
  const auto mode = settings::MapModeOf(drawing.Mode);
  if (!mode) {
    throw model::FatalError("The mode is one of colour3d, colour, grey and bw, not \"" +
                            drawing.Mode + "\".");
  }
  std::vector<orders::OrderOutcome> drawn;
  if (drawing.ShowsOrders) drawn = session::SeasonOrders(*now_);
  return render::DrawMap({State(),
                          {*mode, drawing.CentreCount, drawing.Borders, drawing.CentreOwners},
                          Home(),
                          drawing.Width,
                          isSvg ? render::MapFormat::Svg : render::MapFormat::Png,
                          std::move(drawn)},
                         Home());
}

}  // namespace orb::python
