#pragma once

#include "model/messages.h"
#include "session/session.h"
#include "ui/session/start.h"

#include <QObject>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orb::ui {

/// The one game of the window, how it is shown, and the commands on both: each is passed on to the
/// session, and signals say what has changed. When a command meets a fatal error, an error box
/// shows it and everything stays as it was.
class Desk : public QObject {
  Q_OBJECT

 public:
  /// Draws a game so that it can be shown; throws FatalError when it cannot be drawn.
  using Drawing = std::function<void(const session::Situation&, const View&)>;

  /// The messages must outlive the desk.
  Desk(Start start, std::filesystem::path dataDirectory, model::Messages& messages,
       QObject* parent);

  const session::Situation& now() const { return m_session.Now(); }
  const model::GameState& game() const { return now().Game; }
  const View& view() const { return m_view; }

  /// Whether the game differs from what its file holds, or from the new game that it began as. A
  /// recovered game does until it is saved.
  bool isModified() const;

  /// Whether it holds orders that no game file has a place for: those of retreats and adjustments.
  bool hasOrdersNoFileKeeps() const;

  /// Whether anything would be lost with the window.
  bool hasUnsavedWork() const { return isModified() || hasOrdersNoFileKeeps(); }

  const std::filesystem::path& dataDirectory() const { return m_dataDirectory; }

  /// Called before anything new is taken over: what cannot be drawn is not.
  void setDrawing(Drawing draw) { m_draw = std::move(draw); }

  /// Tells by which rules the game of a file was resolved before; asked when a file is opened.
  void setRulesMemory(std::function<session::Rules(const std::string& file)> rulesOf) {
    m_rulesOf = std::move(rulesOf);
  }

  /// Calls the receiver's slot after every command that changed any of these parts.
  template <class Receiver>
  void whenChanged(session::Changes parts, Receiver* receiver, void (Receiver::*slot)()) const {
    connect(this, &Desk::changed, receiver, [=](session::Changes changes) {
      if (session::Meet(changes, parts)) (receiver->*slot)();
    });
  }

  // The commands on game files. A file that cannot be read or written leaves the game as it was;
  // saving is then false.
  void newGame();
  void blankGame();
  void openGame(const std::filesystem::path& file, bool readOnly);
  /// Goes on with a game that was not saved; false: it could not be shown.
  bool recoverGame(const session::Situation& recovered);
  bool saveGameAs(const std::filesystem::path& file,
                  session::Overwrite overwrite = session::Overwrite::Unchanged);

  /// False when nothing was filed.
  bool fileOrder(const std::string& text);
  void deleteOrder(int row);

  /// How many were filed.
  int fileOrders(const std::vector<exchange::ReadLine>& lines);

  void resolve();
  void nextSeason();
  void undoSeason();
  void setRules(session::Rules rules);
  void editSeason(const model::SeasonFacts& facts);
  void setColours(const model::CountryTable& colours);

  // Editing by hand. Each change is a step; withdrawing one leaves nothing to be redone.
  void setEditing(session::Editing editing);

  /// The change's own text: empty, or why it is refused.
  std::string edit(const session::PositionChange& change);
  void undoEdit();
  void redoEdit();
  void withdrawEdit();

  // How the game is shown. What cannot be drawn that way is not taken over.
  void setMapOptions(const settings::MapOptions& options);
  void setViewOnly(bool viewOnly);
  void setShowOrders(bool showOrders);
  void setCompare(bool compare);

 signals:
  /// A command changed these parts of the situation. After one that was abandoned, all of them:
  /// what a control shows already goes back.
  void changed(session::Changes changes);

  /// The view was set, or could not be: controls show again how it is.
  void viewChanged();

  /// A resolution was abandoned at a line; follows changed.
  void stopped();

 private:
  /// What the game's file holds after a command: what it held before, the game, or another game.
  enum class FileHolds { Same, Game, Other };

  /// False when the command was declined or abandoned.
  bool run(const session::Command& command, FileHolds holds = FileHolds::Same);
  /// Draws the game with another view and keeps that view, or reports why not.
  void show(const View& view);

  session::Session m_session;
  std::optional<model::GameState> m_saved;  ///< nothing: no file holds the game
  View m_view;
  std::filesystem::path m_dataDirectory;
  model::Messages& m_messages;
  Drawing m_draw = [](const session::Situation&, const View&) {};
  std::function<session::Rules(const std::string&)> m_rulesOf = [](const std::string&) {
    return session::Rules::Orb;
  };
};

}  // namespace orb::ui
