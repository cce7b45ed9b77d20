#pragma once

#include "ui/session/desk.h"

#include <QLabel>
#include <QStatusBar>

namespace orb::ui {

class ElidedLabel;

/// Below the window: the place under the pointer or a short message, the rules in force where they
/// are not ORB's own, whether the game is only read, and its file.
class StatusLine : public QStatusBar {
  Q_OBJECT

 public:
  StatusLine(const Desk& desk, QWidget* parent);

  void showText(const QString& text);

 private:
  void showGame();

  const Desk& m_desk;
  ElidedLabel* m_text;
  QLabel* m_rules;
  QLabel* m_readOnly;
  ElidedLabel* m_file;
};

}  // namespace orb::ui
