#pragma once

#include "ui/recovery/recovery_folder.h"
#include "ui/session/desk.h"

#include <QObject>
#include <QTimer>

#include <filesystem>
#include <optional>

namespace orb::ui {

/// Keeps a copy of the desk's game on disk as long as there is something in it that no file holds,
/// so that whatever ends the program takes a few seconds of work at most.
class RecoveryKeeper : public QObject {
  Q_OBJECT

 public:
  /// An empty folder: no copies are kept. The desk must outlive the keeper.
  RecoveryKeeper(const Desk& desk, const std::filesystem::path& folder, QObject* parent);

  /// Writes the copy now, or removes it when the game is saved. False: it could not be written.
  bool keepNow();

  /// Removes the copy, and keeps none until the game changes again: what is in it is not wanted.
  void drop();

 signals:
  /// No copy could be written; the reason is for the user. Told once.
  void failed(const QString& reason);

 private:
  void plan();

  const Desk& m_desk;
  std::optional<LockedCopy> m_copy;  ///< nothing where no copies are kept
  QTimer m_timer;
  bool m_told = false;
};

}  // namespace orb::ui
