#pragma once

#include "session/rules.h"

#include <QByteArray>
#include <QSettings>
#include <QStringList>

#include <filesystem>
#include <optional>

namespace orb::ui {

/// What the window remembers from one start to the next, in the user's configuration directory:
/// all but the settings of the map, which have a file of their own. What is missing or cannot be
/// read has its default; what cannot be written is lost in silence, as nothing depends on it.
class WindowMemory {
 public:
  static constexpr qsizetype RecentFileBound = 8;

  explicit WindowMemory(const std::filesystem::path& configDirectory);

  /// Size, place and state of the window, as QWidget::saveGeometry gives them; empty on the first
  /// start.
  QByteArray geometry() const;
  void setGeometry(const QByteArray& geometry);

  /// The factor by which the map is enlarged, above 0; nothing: the map fits the window.
  std::optional<double> zoom() const;
  void setZoom(std::optional<double> zoom);

  /// Names of wishes: how wide the panels beside the map are, and which part of their height the
  /// lower ones have.
  static constexpr const char* ColumnWidth = "window/columnWidth";
  static constexpr const char* FactsShare = "window/factsShare";

  /// Where the user has put a border, above 0 as SharedRoom counts; as given until it is set.
  int wish(const char* name, int otherwise) const;
  void setWish(const char* name, int wish);

  /// A choice that is on or off; as given until it is set.
  bool flag(const QString& name, bool otherwise = false) const;
  void setFlag(const QString& name, bool on);

  /// The rules for the game of a file, whose form has no place for them; ORB's own until others are
  /// set. Of more files than anybody keeps up the oldest are forgotten.
  session::Rules rules(const QString& file) const;
  void setRules(const QString& file, session::Rules rules);

  /// The folder of the game file used last; empty for none.
  QString folder() const;
  void setFolder(const QString& folder);

  /// Game files opened or saved, the last one first.
  QStringList recentFiles() const;
  /// Puts a file in front, under its full path; beyond the bound the oldest is forgotten.
  void addRecentFile(const QString& file);
  void removeRecentFile(const QString& file);
  void clearRecentFiles();

  /// Writes all of it to the disk, which otherwise happens some time later.
  void flush() { m_store.sync(); }

 private:
  QSettings m_store;
};

}  // namespace orb::ui
