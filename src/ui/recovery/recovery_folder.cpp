#include "ui/recovery/recovery_folder.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <algorithm>
#include <system_error>
#include <utility>

namespace orb::ui {
namespace {

namespace fs = std::filesystem;

constexpr const char* Extension = ".copy";

QString toQt(const fs::path& path) {
  return QFile::decodeName(path.c_str());
}

}  // namespace

LockedCopy::LockedCopy(fs::path file) : m_file(std::move(file)) {
  fs::path lockFile = m_file;
  lockFile.replace_extension(".lock");
  m_lock = std::make_unique<QLockFile>(toQt(lockFile));
  // Only the end of its owner makes a lock void: a window may stand for days.
  m_lock->setStaleLockTime(0);
}

bool LockedCopy::lock() {
  if (m_lock->isLocked()) return true;
  std::error_code ignored;
  fs::create_directories(m_file.parent_path(), ignored);
  return m_lock->tryLock(0);
}

void LockedCopy::remove() {
  std::error_code ignored;
  fs::remove(m_file, ignored);
  m_lock->unlock();
}

LockedCopy RecoveryFolder::newCopy() const {
  const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
  return LockedCopy(m_folder / (name.toStdString() + Extension));
}

std::vector<LockedCopy> RecoveryFolder::leftBehind() const {
  std::vector<std::pair<fs::file_time_type, fs::path>> files;
  std::error_code error;
  for (fs::directory_iterator entry(m_folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (entry->path().extension() == Extension)
      files.emplace_back(entry->last_write_time(ignored), entry->path());
  }
  std::sort(files.rbegin(), files.rend());
  std::vector<LockedCopy> copies;
  for (auto& [time, file] : files) {
    LockedCopy copy(std::move(file));
    // Its window may have ended in the meantime and taken it along.
    if (copy.lock() && fs::exists(copy.file(), error)) copies.push_back(std::move(copy));
  }
  return copies;
}

}  // namespace orb::ui
