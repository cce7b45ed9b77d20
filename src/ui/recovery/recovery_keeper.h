#pragma once

#include "ui/recovery/recovery_folder.h"
#include "ui/session/desk.h"

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <optional>

namespace orb::ui {

/// Keeps a copy of the desk's game on disk as long as there is something in it that no file holds,
/// so that whatever ends the program takes a few seconds of work at most. Likewise one of the game
/// that another took the place of before it was saved, as long as it can be taken back.
class RecoveryKeeper : public QObject {
  Q_OBJECT

 public:
  /// An empty folder: no copies are kept. The desk must outlive the keeper.
  RecoveryKeeper(const Desk& desk, const std::filesystem::path& folder, QObject* parent);

  /// Writes the copies now, or removes those of what is saved. False: one could not be written.
  bool keepNow();

  /// Removes the copies, and keeps none until the game changes again: what is in it is not wanted.
  void drop();

 signals:
  /// No copy could be written; the reason is for the user. Told once.
  void failed(const QString& reason);

 private:
  void plan();
  bool keepLeft();
  /// Makes the copy one of this situation; without one it is removed.
  bool keep(LockedCopy& copy, const session::Situation* situation);

  const Desk& m_desk;
  std::optional<LockedCopy> m_copy;  ///< nothing where no copies are kept
  std::optional<LockedCopy> m_left;  ///< of the game left behind
  std::optional<int> m_leftStep;     ///< the number of the step that the latter was written for
  QTimer m_timer;
  bool m_told = false;
};

}  // namespace orb::ui
