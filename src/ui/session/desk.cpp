#include "ui/session/desk.h"

#include "model/errors.h"
#include "model/game_file.h"
#include "model/new_game.h"
#include "model/seasons.h"
#include "orders/exchange/order_files.h"
#include "orders/order_list.h"
#include "settings/map_options.h"

#include <utility>

namespace orb::ui {
namespace {

bool listsDiffer(const model::GameState& a, const model::GameState& b) {
  return a.OrdersList != b.OrdersList || a.RetreatsList != b.RetreatsList ||
         a.AdjustmentsList != b.AdjustmentsList;
}

}  // namespace

Desk::Desk(Situation start, std::filesystem::path dataDirectory, model::Messages& messages,
           QObject* parent)
    : QObject(parent),
      m_now(std::move(start)),
      m_dataDirectory(std::move(dataDirectory)),
      m_messages(messages) {}

void Desk::newGame() {
  run([this](Situation& next) {
    next.editing = Editing::None;
    model::NewGame(next.game, m_dataDirectory);
  });
}

void Desk::blankGame() {
  run([this](Situation& next) {
    next.editing = Editing::None;
    model::BlankGame(next.game, m_dataDirectory);
  });
}

void Desk::openGame(const std::filesystem::path& file, bool readOnly) {
  run([&](Situation& next) {
    next.readOnly = readOnly;
    next.editing = Editing::None;
    next.stoppedLine.reset();
    model::ReadGameFile(next.game, file, m_dataDirectory, m_messages);
  });
}

void Desk::saveGame() {
  run([](Situation& next) { model::WriteGameFile(next.game); });
}

void Desk::saveGameAs(const std::filesystem::path& file) {
  run([&](Situation& next) {
    next.readOnly = false;
    next.game.FileName = file.string();
    model::WriteGameFile(next.game);
  });
}

bool Desk::fileOrder(OrderList list, const std::string& text) {
  bool filed = false;
  const bool done = run([&](Situation& next) { filed = orders::FileOrder(next.game.*list, text); });
  return done && filed;
}

void Desk::deleteOrder(OrderList list, int position) {
  run([&](Situation& next) { orders::DeleteOrder(next.game.*list, position); });
}

int Desk::fileOrders(const std::vector<exchange::ReadLine>& lines) {
  int filed = 0;
  const bool done = run([&](Situation& next) { filed = exchange::FileOrders(next.game, lines); });
  return done ? filed : 0;
}

void Desk::resolve() {
  run([this](Situation& next) { resolveStage(next, m_messages); });
  if (m_now.stoppedLine) emit stopped();
}

void Desk::nextSeason() {
  run([](Situation& next) { model::NextSeason(next.game); });
}

void Desk::undoSeason() {
  run([this](Situation& next) {
    if (model::UndoSeason(next.game, m_messages)) next.editing = Editing::None;
  });
}

void Desk::editSeason(const model::SeasonFacts& facts) {
  run([&](Situation& next) {
    next.editing = Editing::None;
    model::EditSeason(next.game, facts);
  });
}

void Desk::setMapOptions(const settings::MapOptions& options) {
  run([&](Situation& next) { next.mapOptions = options; });
}

void Desk::setViewOnly(bool viewOnly) {
  run([&](Situation& next) { next.viewOnly = viewOnly; });
}

void Desk::setShowOrders(bool showOrders) {
  run([&](Situation& next) { next.showOrders = showOrders; });
}

void Desk::setColours(const model::CountryTable& colours) {
  run([&](Situation& next) {
    for (int i = 1; i <= model::CountryCount; ++i) {
      next.game.Countries[i].Colour = colours[i].Colour;
      next.game.Countries[i].TextColour = colours[i].TextColour;
    }
  });
}

void Desk::setEditing(Editing editing) {
  run([&](Situation& next) { next.editing = editing; });
}

std::string Desk::edit(const std::function<std::string(model::GameState&)>& change) {
  std::string refusal;
  run([&](Situation& next) {
    refusal = change(next.game);
    next.edits.Record(m_now.game, next.game);
  });
  return refusal;
}

void Desk::undoEdit() {
  run([](Situation& next) { next.edits.Undo(next.game); });
}

void Desk::redoEdit() {
  run([](Situation& next) { next.edits.Redo(next.game); });
}

void Desk::withdrawEdit() {
  run([](Situation& next) { next.edits.Withdraw(next.game); });
}

bool Desk::run(const std::function<void(Situation&)>& command) {
  bool done = false;
  try {
    Situation next = m_now;
    command(next);
    next.reportNotes.resize(static_cast<std::size_t>(next.game.ReportLines.Count()));
    if (listsDiffer(next.game, m_now.game)) next.stoppedLine.reset();
    if (next.game.ReportLines.Count() == 0) next.outcomes.clear();
    const bool edited = next.editing != Editing::None && next.edits.LeadsTo(next.game);
    if (!edited) next.edits.Clear();
    m_draw(next);
    m_now = std::move(next);
    done = true;
  } catch (const model::FatalError& fault) {
    m_messages.Show(fault.what(), model::Icon::Stop);
  }
  emit changed();
  return done;
}

}  // namespace orb::ui
