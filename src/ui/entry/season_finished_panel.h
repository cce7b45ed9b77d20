#pragma once

#include "ui/session/desk.h"

#include <QWidget>

namespace orb::ui {

/// The way from a finished season to the next one. It warns first: the next season drops the
/// report.
class SeasonFinishedPanel : public QWidget {
  Q_OBJECT

 public:
  explicit SeasonFinishedPanel(Desk& desk, QWidget* parent = nullptr);
};

}  // namespace orb::ui
