#include "ui/window/unsaved_work.h"

#include "ui/recovery/recovery_question.h"
#include "ui/widgets/game_name.h"
#include "ui/widgets/message_boxes.h"

#include <QGuiApplication>
#include <QPushButton>

#include <utility>

namespace orb::ui {
namespace {

std::filesystem::path copiesIn(const std::filesystem::path& state) {
  return state.empty() ? state : state / "recovery";
}

QString ordersAtStake(const Desk& desk) {
  return desk.game().Stage == model::Stage::Retreats
             ? QObject::tr(
                   "The retreats that were entered are kept in no file; only resolving "
                   "them keeps what they do.")
             : QObject::tr(
                   "The builds and disbands that were entered are kept in no file; only "
                   "resolving them keeps what they do.");
}

QString question(const Desk& desk) {
  QStringList sentences;
  if (desk.isModified()) {
    sentences << QObject::tr("%1 has changes that are not saved.\nSave them before closing?")
                     .arg(gameName(desk.game()));
  }
  if (desk.hasOrdersNoFileKeeps()) sentences << ordersAtStake(desk);
  return sentences.join(QLatin1String("\n\n"));
}

}  // namespace

UnsavedWork::UnsavedWork(Desk& desk, const Places& places, std::function<bool()> save,
                         QWidget* window)
    : QObject(window),
      m_desk(desk),
      m_copies(copiesIn(places.state)),
      m_save(std::move(save)),
      m_window(window),
      m_keeper(desk, m_copies, nullptr) {
  connect(&m_keeper, &RecoveryKeeper::failed, this, [this](const QString& reason) {
    emit noted(tr("No copy for recovery can be kept: %1").arg(reason));
  });
  // Who goes on working after all is asked again.
  connect(&m_desk, &Desk::changed, this, [this] { m_sessionEnds = false; });
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this,
      [this](QSessionManager& manager) {
        const bool mayAsk = m_desk.hasUnsavedWork() && manager.allowsInteraction();
        if (!endSession(mayAsk)) manager.cancel();
        if (mayAsk) manager.release();
      },
      Qt::DirectConnection);
}

bool UnsavedWork::mayClose() {
  if (m_sessionEnds) return true;
  if (!settle()) return false;
  m_keeper.drop();
  return true;
}

bool UnsavedWork::endSession(bool mayAsk) {
  if (mayAsk) {
    if (!settle()) return false;
    m_keeper.drop();
  } else {
    m_keeper.keepNow();
  }
  m_sessionEnds = true;
  return true;
}

void UnsavedWork::offerRecovery() {
  ui::offerRecovery(m_desk, m_keeper, m_copies, m_window);
}

bool UnsavedWork::settle() {
  if (!m_desk.hasUnsavedWork()) return true;
  MessageBox box(question(m_desk), QMessageBox::Warning, m_window);
  box.setObjectName(QStringLiteral("frmClosing"));
  box.setStandardButtons(QMessageBox::Discard | QMessageBox::Cancel);
  box.setEscapeButton(QMessageBox::Cancel);
  box.setDefaultButton(QMessageBox::Cancel);
  if (m_desk.isModified()) {
    QPushButton* save = box.addButton(QMessageBox::Save);
    const bool asksWhere = m_desk.game().FileName.empty() || !session::CanSave(m_desk.now());
    if (asksWhere) save->setText(tr("&Save as..."));
    box.setDefaultButton(save);
  }
  switch (box.exec()) {
    case QMessageBox::Save:
      return m_save();
    case QMessageBox::Discard:
      return true;
    default:
      return false;
  }
}

}  // namespace orb::ui
