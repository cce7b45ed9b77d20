#pragma once

#include <QObject>

namespace orb::ui {

/// Asks the desktop's portal for what it wishes of programs, at the start and whenever a setting
/// changes. Nothing waits for its answer, and where there is no portal nothing is wished.
class DesktopPortal : public QObject {
  Q_OBJECT

 public:
  explicit DesktopPortal(QObject* parent = nullptr);

 public slots:  // NOLINT(readability-redundant-access-specifiers): Qt finds them by name
  /// Asks anew.
  void ask();
};

}  // namespace orb::ui
