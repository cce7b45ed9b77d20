#pragma once

#include "history/replay_sequence.h"
#include "ui/replay/animation_bar.h"
#include "ui/replay/animation_picture.h"
#include "ui/replay/playhead.h"
#include "ui/session/desk.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <filesystem>
#include <optional>
#include <vector>

namespace orb::ui {

/// Plays seasons in the place of the map. The game is not touched: its map is there again when the
/// animation ends. Where the desktop wishes less motion, it leaps from stage to stage. The playhead
/// keeps the time, the picture draws and the bar has the controls; the player connects them.
class AnimationPlayer : public QObject {
  Q_OBJECT

 public:
  /// Dialogs come up over the window. All must outlive the player.
  AnimationPlayer(const Desk& desk, model::Messages& messages, MapPicture& map, QWidget* window);

  /// The controls, hidden while nothing is played; to be placed by the window.
  AnimationBar* bar() const { return m_bar; }

  /// Whether an animation has the map's place, be it stopped or not.
  bool isOn() const { return !m_picture.isNull(); }

  /// Plays the season of the game.
  void playSeason();

  /// Asks for game files and plays what lies between them.
  void askAndPlayFiles();

  /// Plays what fits of some game files, and names those that do not.
  void playFiles(const std::vector<std::filesystem::path>& files);

  /// Plays what lies between situations that are in the order of their seasons.
  void playGames(const std::vector<model::GameState>& games);

  void end();

 signals:
  /// An animation has begun or ended.
  void changed();

  /// Something for the status bar: what was done.
  void noted(const QString& text);

 private:
  void connectBar();
  void play(std::vector<history::ReplayPart> parts);
  void playOrStop();
  void setPlaying(bool playing);
  /// A frame: as much time as has really passed, at the chosen speed.
  void tick();
  void moveTo(double position);
  void show();
  void showOptions();
  void exportParts();

  const Desk& m_desk;
  model::Messages& m_messages;
  MapPicture& m_map;
  QWidget* m_window;
  AnimationBar* m_bar;
  QPointer<AnimationPicture> m_picture;  ///< belongs to the map
  std::vector<history::ReplayPart> m_parts;
  Playhead m_playhead{{1}};
  /// What the picture holds; nothing when it must be drawn anew.
  std::optional<int> m_shownSeason;
  QTimer m_timer;
  QElapsedTimer m_clock;
  /// Has the keyboard again afterwards, if it is still there.
  QPointer<QWidget> m_focusBefore;
};

}  // namespace orb::ui
