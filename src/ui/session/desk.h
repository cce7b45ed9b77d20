#pragma once

#include "model/messages.h"
#include "model/season_edit.h"
#include "orders/exchange/read_orders.h"
#include "settings/map_options.h"
#include "ui/session/situation.h"

#include <QObject>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace orb::ui {

/// The one game of the window and the commands on it. Each command is one call into the core on a
/// copy of the situation, which is then shown and takes the old one's place. A command that meets
/// a fatal error is reported in an error box, and everything stays as it was.
class Desk : public QObject {
  Q_OBJECT

 public:
  /// One of the lists of order lines in the game.
  using OrderList = std::vector<std::string> model::GameState::*;

  /// The messages must outlive the desk.
  Desk(Situation start, std::filesystem::path dataDirectory, model::Messages& messages,
       QObject* parent);

  const Situation& now() const { return m_now; }
  const model::GameState& game() const { return m_now.game; }
  const std::filesystem::path& dataDirectory() const { return m_dataDirectory; }

  /// Called with each new situation before it is taken over; throws FatalError when it cannot be
  /// drawn, which abandons the command.
  void setDrawing(std::function<void(const Situation&)> draw) { m_draw = std::move(draw); }

  void newGame();
  void blankGame();
  void openGame(const std::filesystem::path& file, bool readOnly);
  void saveGame();
  void saveGameAs(const std::filesystem::path& file);

  /// False when nothing was filed.
  bool fileOrder(OrderList list, const std::string& text);
  void deleteOrder(OrderList list, int position);

  /// Files the orders of lines that were understood into the list of the stage; how many.
  int fileOrders(const std::vector<exchange::ReadLine>& lines);

  void resolve();
  void nextSeason();
  void undoSeason();

  /// Ends any other editing.
  void editSeason(const model::SeasonFacts& facts);

  void setMapOptions(const settings::MapOptions& options);
  void setViewOnly(bool viewOnly);
  void setShowOrders(bool showOrders);

  /// Takes over both colours of every power, and nothing else of the table.
  void setColours(const model::CountryTable& colours);

  /// Choosing the stage's own entry ends the editing.
  void setEditing(Editing editing);

  /// A step of editing, which may be taken back till the editing ends or another command changes
  /// what is edited. Returns the change's own text: empty, or why it is refused.
  std::string edit(const std::function<std::string(model::GameState&)>& change);
  void undoEdit();
  void redoEdit();

  /// Undoes the last step as if it had never been.
  void withdrawEdit();

 signals:
  void changed();

  /// A resolution was abandoned at a question; follows changed.
  void stopped();

 private:
  /// False when the command was abandoned.
  bool run(const std::function<void(Situation&)>& command);

  Situation m_now;
  std::filesystem::path m_dataDirectory;
  model::Messages& m_messages;
  std::function<void(const Situation&)> m_draw = [](const Situation&) {};
};

}  // namespace orb::ui
