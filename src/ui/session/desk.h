#pragma once

#include "model/messages.h"
#include "session/session.h"
#include "ui/session/past.h"
#include "ui/session/start.h"
#include "ui/session/trial.h"

#include <QObject>
#include <QString>

#include <filesystem>
#include <functional>
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

  /// What is tried out; nothing: the game is shown as it is. A trial of the stage follows the
  /// orders and the rules; any other change of the game ends it.
  const std::optional<Trial>& trial() const { return m_trial; }

  /// The stage of the history that is looked at; nothing: the game is shown as it is. Any change of
  /// the game ends it, and there is never a trial at the same time.
  const std::optional<Past>& past() const { return m_past; }

  /// What map, report and supply centres show: another stage of the history, the outcome that is
  /// tried out, else the game.
  const session::Situation& shown() const {
    if (m_past) return m_past->situation;
    return m_trial ? m_trial->outcome : now();
  }

  /// How it is shown: what is tried out with its orders.
  View shownView() const { return viewOf(m_view, m_trial); }

  /// Whether the game differs from what its file holds, or from the new game that it began as. A
  /// recovered game does until it is saved.
  bool isModified() const { return session::IsModified(now()); }

  /// Whether it holds orders that no game file has a place for: those of retreats and adjustments.
  bool hasOrdersNoFileKeeps() const { return session::HasOrdersNoFileKeeps(now()); }

  /// Whether anything would be lost with the window.
  bool hasUnsavedWork() const { return session::HasUnsavedWork(now()); }

  /// The step at which another game took the place of one with unsaved work, which it keeps; null
  /// for none.
  const session::History::Step* leftBehind() const { return m_session.Steps().LeftBehind(); }

  const std::filesystem::path& dataDirectory() const { return m_dataDirectory; }

  /// The folder of the game's file or, where the game has none, of the file that was one last;
  /// empty for none.
  const std::filesystem::path& folder() const { return m_folder; }

  /// The folder of the last file at an earlier start.
  void recallFolder(const std::filesystem::path& folder);

  /// Called before anything new is taken over: what cannot be drawn is not.
  void setDrawing(Drawing draw) { m_draw = std::move(draw); }

  /// Tells by which rules the game of a file was resolved before; asked for the present one, and
  /// whenever a file is opened.
  void setRulesMemory(std::function<session::Rules(const std::string& file)> rulesOf);

  /// Calls the receiver's slot after every command that changed any of these parts.
  template <class Receiver>
  void whenChanged(session::Changes parts, Receiver* receiver, void (Receiver::*slot)()) const {
    connect(this, &Desk::changed, receiver, [=](session::Changes changes) {
      if (session::Meet(changes, parts)) (receiver->*slot)();
    });
  }

  /// The same for what shown() tells of.
  template <class Receiver>
  void whenShownChanged(session::Changes parts, Receiver* receiver,
                        void (Receiver::*slot)()) const {
    whenChanged(parts, receiver, slot);
    connect(this, &Desk::trialChanged, receiver, slot);
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

  /// How many were filed; `how` names the step: "Import Orders".
  int fileOrders(const std::vector<exchange::ReadLine>& lines, const QString& how);

  void resolve();

  /// Tries out the stage with its orders as they are.
  void tryOut();
  /// Tries out another situation than the game's, until the game changes; `change` says what is
  /// other.
  void tryOut(const session::Situation& otherwise, std::string change);
  /// Shows another stage of the game's history.
  void showPast(Past past);
  /// Shows the game as it is, whatever was shown instead.
  void endTrial();

  void nextSeason();
  void undoSeason();
  void setRules(session::Rules rules);
  void editSeason(const model::SeasonFacts& facts);
  void setColours(const model::CountryTable& colours);

  // Every command above and every edit is a step, but for saving and the colours. What would be
  // taken back, or done again, is named for the user; without a name there is nothing.
  void takeBack();
  void doAgain();
  QString lastStep() const;
  QString nextStep() const;

  // Editing by hand. Withdrawing the last change leaves nothing to be done again.
  void setEditing(session::Editing editing);

  /// The change's own text: empty, or why it is refused.
  std::string edit(const session::PositionChange& change);
  void withdrawEdit();
  bool canUndoEdit() const { return m_session.CanUndoEdit(); }
  bool canRedoEdit() const { return m_session.CanRedoEdit(); }

  // How the game is shown. What cannot be drawn that way is not taken over.
  void setMapOptions(const settings::MapOptions& options);
  void setViewOnly(bool viewOnly);
  void setShowOrders(bool showOrders);
  void setCompare(bool compare);

 signals:
  /// Something else than the game is shown, or comes out otherwise now, or nothing is any more: a
  /// trial, or another stage of the history.
  void trialChanged();

  /// A command changed these parts of the situation. After one that was abandoned, all of them:
  /// what a control shows already goes back.
  void changed(session::Changes changes);

  /// The view was set, or could not be: controls show again how it is.
  void viewChanged();

  /// A resolution was abandoned at a line; follows changed.
  void stopped();

  /// The game was written to its file.
  void saved();

  /// Something for the status bar: what became of the last command.
  void noted(const QString& text);

 private:
  static View viewOf(View view, const std::optional<Trial>& trial);
  /// Draws a situation that is about to be taken over, or what becomes of the trial in it.
  void review(const session::Situation& next);
  void begin(Trial trial);
  /// False when the command was declined or abandoned. One with a name can be taken back.
  bool run(const session::Command& command, const QString& name = {},
           session::StepKind kind = session::StepKind::Plain);
  /// False when it was not done; whatever happened is told by changed.
  bool tell(const std::function<session::Effect()>& work);
  void noteFolder();
  void goTo(session::Effect (session::Session::*way)(), const QString& told);
  /// Draws the game with another view and keeps that view, or reports why not.
  void show(const View& view);

  session::Session m_session;
  std::optional<Trial> m_trial;
  std::optional<Past> m_past;
  View m_view;
  std::filesystem::path m_dataDirectory;
  std::filesystem::path m_folder;
  model::Messages& m_messages;
  Drawing m_draw = [](const session::Situation&, const View&) {};
  std::function<session::Rules(const std::string&)> m_rulesOf = [](const std::string&) {
    return session::Rules::Orb;
  };
};

}  // namespace orb::ui
