#pragma once

#include "ui/recovery/recovery_keeper.h"
#include "ui/session/desk.h"
#include "ui/session/places.h"

#include <QObject>
#include <QSessionManager>
#include <QWidget>

#include <functional>

namespace orb::ui {

/// Sees to it that nothing is lost with the window: the question before it closes, the copy for
/// when nobody can be asked, and the offer of such copies at the next start.
class UnsavedWork : public QObject {
  Q_OBJECT

 public:
  /// `save` saves the game, asks where if need be, and returns whether it did.
  UnsavedWork(Desk& desk, const Places& places, std::function<bool()> save, QWidget* window);

  /// Whether the window may close. The user is asked where anything would be lost, and then the
  /// copy is removed, saved or not; at the end of the desktop's session that was settled before.
  bool mayClose();

  /// The desktop's session ends: asks where it lets the user be asked; false: it shall go on.
  bool endSession(bool mayAsk);

  /// The program ends at once.
  void keepCopy() { m_keeper.keepNow(); }

  /// Offers the games of windows that ended before they were saved.
  void offerRecovery();

 signals:
  /// Something for the status bar.
  void noted(const QString& text);

 private:
  /// Asks what becomes of unsaved work, where there is any; false: the window stays.
  bool settle();

  Desk& m_desk;
  std::filesystem::path m_copies;
  std::function<bool()> m_save;
  QWidget* m_window;
  RecoveryKeeper m_keeper;
  /// The window is closed by the session that ends, and not by its user.
  bool m_sessionEnds = false;
};

}  // namespace orb::ui
