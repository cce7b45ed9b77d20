#include "desktop_portal.h"

#include "ui/widgets/desktop_wishes.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>

namespace orb::ui {
namespace {

const QString Service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString Path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString Interface = QStringLiteral("org.freedesktop.portal.Settings");

using Settings = QMap<QString, QVariantMap>;

/// Without one the bus would be started for this question alone.
bool hasSessionBus() {
  if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString own = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !own.isEmpty() && QFileInfo::exists(own + QStringLiteral("/bus"));
}

}  // namespace

DesktopPortal::DesktopPortal(QObject* parent) : QObject(parent) {
  if (!hasSessionBus()) return;
  qDBusRegisterMetaType<Settings>();
  QDBusConnection::sessionBus().connect(Service, Path, Interface, QStringLiteral("SettingChanged"),
                                        this, SLOT(ask()));
  ask();
}

void DesktopPortal::ask() {
  QDBusMessage question =
      QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("ReadAll"));
  question << QStringList{QStringLiteral("org.freedesktop.appearance"),
                          QStringLiteral("org.gnome.desktop.interface"),
                          QStringLiteral("org.kde.kdeglobals.KDE")};
  const QDBusPendingCall call = QDBusConnection::sessionBus().asyncCall(question);
  auto* answer = new QDBusPendingCallWatcher(call, this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [](QDBusPendingCallWatcher* ended) {
    const QDBusPendingReply<Settings> reply = *ended;
    if (reply.isValid()) setDesktopWishes(wishesIn(reply.value()));
    ended->deleteLater();
  });
}

}  // namespace orb::ui
