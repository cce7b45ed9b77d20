#pragma once

#include "history/timeline.h"
#include "ui/session/desk.h"

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace orb::ui {

/// The stages of the desk's game that lie in files beside its own. They are looked for in small
/// steps while nothing else is to be done, whenever the game gets another file or stage; what is no
/// readable game is passed over.
class SeasonFiles : public QObject {
  Q_OBJECT

 public:
  explicit SeasonFiles(const Desk& desk, QObject* parent);

  /// In the order of the game, with the present stage as it is in the window.
  const std::vector<history::Moment>& moments() const { return m_moments; }
  std::size_t present() const { return m_present; }

  /// A stage with what the files before it tell of its season; nothing: its file has changed.
  std::optional<Past> read(std::size_t index) const;

  /// All the stages, as they can be played.
  std::vector<model::GameState> readAll() const;

  /// Looks for files that have come, gone or changed.
  void look();

 signals:
  void changed();

 private:
  void readSome();
  void order();
  std::optional<session::Situation> situationIn(const history::Moment& moment) const;

  const Desk& m_desk;
  QTimer m_timer;
  std::filesystem::path m_origin;  ///< the file beside which the others lie
  std::vector<std::filesystem::path> m_waiting;
  std::vector<history::Moment> m_read;
  /// What was read before; a file that is no game has no title, season and file of its own.
  std::map<std::filesystem::path, history::Moment> m_known;
  std::vector<history::Moment> m_moments;
  std::size_t m_present = 0;
};

}  // namespace orb::ui
