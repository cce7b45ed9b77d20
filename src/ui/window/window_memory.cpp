#include "ui/window/window_memory.h"

#include "ui/output/file_dialogs.h"

namespace orb::ui {
namespace {

// The names in the file; what is there under another name is left alone.
const QString Geometry = QStringLiteral("window/geometry");
const QString Zoom = QStringLiteral("map/zoom");
const QString Folder = QStringLiteral("files/folder");
const QString RecentFiles = QStringLiteral("files/recent");
const QString UsualRules = QStringLiteral("files/usualRules");

constexpr qsizetype UsualRulesBound = 1000;

}  // namespace

WindowMemory::WindowMemory(const std::filesystem::path& configDirectory)
    : m_store(displayPath((configDirectory / "window.ini").string()), QSettings::IniFormat) {}

QByteArray WindowMemory::geometry() const {
  return m_store.value(Geometry).toByteArray();
}

void WindowMemory::setGeometry(const QByteArray& geometry) {
  m_store.setValue(Geometry, geometry);
}

std::optional<double> WindowMemory::zoom() const {
  bool valid = false;
  const double zoom = m_store.value(Zoom).toDouble(&valid);
  // The file can be edited by hand.
  return valid && zoom > 0 ? std::optional(zoom) : std::nullopt;
}

void WindowMemory::setZoom(std::optional<double> zoom) {
  zoom ? m_store.setValue(Zoom, *zoom) : m_store.remove(Zoom);
}

int WindowMemory::wish(const char* name, int otherwise) const {
  const int wish = m_store.value(QLatin1String(name)).toInt();
  return wish > 0 ? wish : otherwise;
}

void WindowMemory::setWish(const char* name, int wish) {
  m_store.setValue(QLatin1String(name), wish);
}

bool WindowMemory::flag(const QString& name, bool otherwise) const {
  return m_store.value(name, otherwise).toBool();
}

void WindowMemory::setFlag(const QString& name, bool on) {
  m_store.setValue(name, on);
}

session::Rules WindowMemory::rules(const QString& file) const {
  const bool usual = m_store.value(UsualRules).toStringList().contains(file);
  return usual ? session::Rules::Usual : session::Rules::Orb;
}

void WindowMemory::setRules(const QString& file, session::Rules rules) {
  if (rules == this->rules(file)) return;
  QStringList files = m_store.value(UsualRules).toStringList();
  files.removeAll(file);
  if (rules == session::Rules::Usual) files.prepend(file);
  m_store.setValue(UsualRules, files.mid(0, UsualRulesBound));
}

QString WindowMemory::folder() const {
  return m_store.value(Folder).toString();
}

void WindowMemory::setFolder(const QString& folder) {
  m_store.setValue(Folder, folder);
}

QStringList WindowMemory::recentFiles() const {
  return m_store.value(RecentFiles).toStringList().mid(0, RecentFileBound);
}

void WindowMemory::addRecentFile(const QString& file) {
  QStringList files = recentFiles();
  files.removeAll(file);
  files.prepend(file);
  m_store.setValue(RecentFiles, QStringList(files.mid(0, RecentFileBound)));
}

void WindowMemory::removeRecentFile(const QString& file) {
  QStringList files = recentFiles();
  files.removeAll(file);
  m_store.setValue(RecentFiles, files);
}

void WindowMemory::clearRecentFiles() {
  m_store.remove(RecentFiles);
}

}  // namespace orb::ui
