#pragma once

#include "ui/session/desk.h"

#include <QObject>

class QMimeData;

namespace orb::ui {

class ExchangeCommands;

/// What is dropped anywhere on the window: a game file is opened, a text or mail with orders is
/// shown for filing, be it a file or a text out of another program.
class WindowDrops : public QObject {
  Q_OBJECT

 public:
  WindowDrops(Desk& desk, ExchangeCommands& exchange, QWidget* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isWanted(const QMimeData& data) const;
  /// Whether it was something to work with; what is done about it follows.
  bool take(const QMimeData& data);

  Desk& m_desk;
  ExchangeCommands& m_exchange;
};

}  // namespace orb::ui
