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
  m_left = RecoveryFolder(folder).newCopy();
  // At most 5 seconds of work may be lost, on a slow disk too.
  m_timer.setInterval(2s);
  m_timer.setSingleShot(true);
  connect(&m_timer, &QTimer::timeout, this, &RecoveryKeeper::keepNow);
  connect(&m_desk, &Desk::changed, this, &RecoveryKeeper::plan);
}

void RecoveryKeeper::plan() {
  // Before the copy of the game that it was goes.
  keepLeft();
  // What is saved needs no copy, from this moment on.
  if (!m_desk.hasUnsavedWork()) {
    m_timer.stop();
    m_copy->remove();
    return;
  }
  // Not begun anew with each change, or steady work would put it off for ever.
  if (!m_timer.isActive()) m_timer.start();
}

bool RecoveryKeeper::keepNow() {
  if (!m_copy) return false;
  m_timer.stop();
  const bool left = keepLeft();
  return keep(*m_copy, m_desk.hasUnsavedWork() ? &m_desk.now() : nullptr) && left;
}

/// A game that was left does not change any more.
bool RecoveryKeeper::keepLeft() {
  const session::History::Step* step = m_desk.leftBehind();
  const auto number = step == nullptr ? std::nullopt : std::optional(step->Number);
  if (m_leftStep == number) return true;
  m_leftStep = number;
  return keep(*m_left, step == nullptr ? nullptr : &step->There);
}

bool RecoveryKeeper::keep(LockedCopy& copy, const session::Situation* situation) {
  if (situation == nullptr) {
    copy.remove();
    return true;
  }
  try {
    if (!copy.lock()) throw model::FileError("its folder cannot be written");
    model::ReplaceFile(copy.file(), formatRecoveryCopy(*situation, QDateTime::currentDateTime()));
    return true;
  } catch (const std::exception& fault) {
    // Nothing can be done about it here, and the next copy may succeed.
    if (!std::exchange(m_told, true)) emit failed(displayText(fault.what()));
    return false;
  }
}

void RecoveryKeeper::drop() {
  m_timer.stop();
  if (!m_copy) return;
  m_copy->remove();
  m_left->remove();
}

}  // namespace orb::ui
