#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

#include <filesystem>
#include <string>

namespace orb::ui {

/// The power that a mail's sender plays, as far as the user had it remembered: by address, in the
/// user's configuration directory. What cannot be read or written is not remembered.
class SenderPowers {
 public:
  explicit SenderPowers(const std::filesystem::path& configDirectory);

  /// The address in "Tom Baker <Tom@example.org>", in small letters; empty where there is none.
  static QString addressOf(const std::string& sender);

  /// The abbreviation of the power that is remembered for an address; empty: none.
  QByteArray power(const QString& address) const;

  /// Remembers it in place of any other; an empty one forgets the address.
  void setPower(const QString& address, const QByteArray& power);

 private:
  QSettings m_store;
};

}  // namespace orb::ui
