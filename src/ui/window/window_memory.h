#pragma once

#include <QByteArray>
#include <QSettings>
#include <QStringList>

#include <filesystem>
#include <optional>

namespace orb::ui {

/// What the window remembers from one start to the next, in the user's configuration directory:
/// all but the settings of the map, which have a file of their own.
class WindowMemory {
 public:
  static constexpr qsizetype RecentFileBound = 8;

  explicit WindowMemory(const std::filesystem::path& configDirectory);

  QByteArray geometry() const;
  void setGeometry(const QByteArray& geometry);

  /// Nothing: the map fits the window.
  std::optional<double> zoom() const;
  void setZoom(std::optional<double> zoom);

  bool flag(const QString& name) const;
  void setFlag(const QString& name, bool on);

  /// Game files opened or saved, the last one first.
  QStringList recentFiles() const;
  void addRecentFile(const QString& file);
  void clearRecentFiles();

 private:
  QSettings m_store;
};

}  // namespace orb::ui
