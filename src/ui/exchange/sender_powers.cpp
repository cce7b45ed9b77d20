#include "ui/exchange/sender_powers.h"

#include "ui/output/file_dialogs.h"

#include <QUrl>

namespace orb::ui {
namespace {

/// The key of an address in the file, where a slash would part groups.
QString keyOf(const QString& address) {
  return QStringLiteral("senders/") + QString::fromLatin1(QUrl::toPercentEncoding(address));
}

}  // namespace

SenderPowers::SenderPowers(const std::filesystem::path& configDirectory)
    : m_store(displayPath((configDirectory / "senders.ini").string()), QSettings::IniFormat) {}

QString SenderPowers::addressOf(const std::string& sender) {
  constexpr qsizetype longest = 200;
  const QString text = QString::fromStdString(sender);
  const qsizetype open = text.lastIndexOf(QLatin1Char('<'));
  const qsizetype close = text.indexOf(QLatin1Char('>'), open + 1);
  const QString inside = open >= 0 && close > open ? text.mid(open + 1, close - open - 1) : text;
  const QString address = inside.trimmed().toLower();
  const bool isAddress = address.indexOf(QLatin1Char('@')) > 0 && address.size() <= longest;
  return isAddress && !address.contains(QLatin1Char(' ')) ? address : QString();
}

QByteArray SenderPowers::power(const QString& address) const {
  return address.isEmpty() ? QByteArray() : m_store.value(keyOf(address)).toByteArray();
}

void SenderPowers::setPower(const QString& address, const QByteArray& power) {
  if (address.isEmpty()) return;
  power.isEmpty() ? m_store.remove(keyOf(address)) : m_store.setValue(keyOf(address), power);
}

}  // namespace orb::ui
