#include "ui/recovery/recovery_keeper.h"

#include "model/errors.h"
#include "model/files.h"
#include "ui/recovery/recovery_copy.h"
#include "ui/widgets/message_boxes.h"

#include <chrono>

namespace orb::ui {

using namespace std::chrono_literals;

RecoveryKeeper::RecoveryKeeper(const Desk& desk, const std::filesystem::path& folder,
                               QObject* parent)
    : QObject(parent), m_desk(desk) {
  if (folder.empty()) return;
  m_copy = RecoveryFolder(folder).newCopy();
  // At most 5 seconds of work may be lost, on a slow disk too.
  m_timer.setInterval(2s);
  m_timer.setSingleShot(true);
  connect(&m_timer, &QTimer::timeout, this, &RecoveryKeeper::keepNow);
  connect(&m_desk, &Desk::changed, this, &RecoveryKeeper::plan);
}

void RecoveryKeeper::plan() {
  // What is saved needs no copy, from this moment on.
  if (!m_desk.hasUnsavedWork()) return drop();
  // Not begun anew with each change, or steady work would put it off for ever.
  if (!m_timer.isActive()) m_timer.start();
}

bool RecoveryKeeper::keepNow() {
  if (!m_copy) return false;
  m_timer.stop();
  if (!m_desk.hasUnsavedWork()) {
    m_copy->remove();
    return true;
  }
  try {
    if (!m_copy->lock()) throw model::FileError("its folder cannot be written");
    model::ReplaceFile(m_copy->file(),
                       formatRecoveryCopy(m_desk.now(), QDateTime::currentDateTime()));
    return true;
  } catch (const std::exception& fault) {
    // Nothing can be done about it here, and the next copy may succeed.
    if (!std::exchange(m_told, true)) emit failed(displayText(fault.what()));
    return false;
  }
}

void RecoveryKeeper::drop() {
  m_timer.stop();
  if (m_copy) m_copy->remove();
}

}  // namespace orb::ui
