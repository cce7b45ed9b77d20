#pragma once

#include "random_use/disk_watch.h"
#include "random_use/random_hands.h"

#include "ui/window/main_window.h"

#include <QObject>
#include <QUrl>

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QDialog;
class QFileDialog;

namespace orb::tests {

/// Somebody who uses the window without any plan: keys, clicks, drags, fingers, menus,
/// dialogs, sizes. The same seed does the same again, as far as the clock has no part in it.
class RandomUser : public QObject {
  Q_OBJECT

 public:
  /// `folder` holds the games and texts that are opened; everything is saved there.
  RandomUser(unsigned seed, std::filesystem::path folder, ui::Places places, DiskWatch& disk);
  RandomUser(const RandomUser&) = delete;
  RandomUser& operator=(const RandomUser&) = delete;
  ~RandomUser() override;

  /// Does so many things, then closes all windows and ends the application.
  void use(int events);

  /// Counts up with each thing done. May be asked from another thread.
  int done() const { return m_done; }

  /// The last things that were done, the latest last.
  std::vector<std::string> lastDeeds() const;

  /// What went wrong with files so far.
  const std::vector<std::string>& faults() const { return m_faults; }

  int dialogs() const { return m_dialogs; }
  int starts() const { return m_starts; }

 public slots:  // NOLINT(readability-redundant-access-specifiers): Qt finds them by name
  /// Mails and files that would be opened in other programs stay closed.
  void leaveClosed(const QUrl& /*url*/) {}

 private:
  // One thing after the other from the event loop, also from that of a dialog which the last thing
  // has opened and which keeps it waiting.
  void plan();
  void step();
  void act();
  void finish();

  void open();
  void answer(QDialog& dialog);
  void answer(QFileDialog& dialog);
  void useWindow();

  void choose();
  void drop();
  void fillClipboard();
  void resize();
  void allowOwnFile();
  void lookAtDisk();
  void note(const std::string& deed);

  std::filesystem::path someFile();

  RandomHands m_hands;
  std::filesystem::path m_folder;
  ui::Places m_places;
  DiskWatch& m_disk;
  std::unique_ptr<ui::MainWindow> m_window;
  std::atomic<int> m_done = 0;
  int m_wanted = 0;
  int m_dialogs = 0;
  int m_looked = 0;  ///< at the disk, after so many events
  int m_starts = 0;
  int m_running = 0;  ///< steps that wait for the end of a dialog
  bool m_planned = false;
  std::vector<std::string> m_deeds;
  std::vector<std::string> m_faults;
};

}  // namespace orb::tests
