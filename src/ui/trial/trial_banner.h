#pragma once

#include "ui/session/desk.h"
#include "ui/widgets/notice_banner.h"

namespace orb::ui {

/// Says above the map that what the window shows is only tried out, and leads back, by its button
/// or Esc, or on to resolving. Hidden while nothing is tried out.
class TrialBanner : public NoticeBanner {
  Q_OBJECT

 public:
  TrialBanner(Desk& desk, QWidget* window);

 private:
  void showTrial();

  Desk& m_desk;
  QPushButton* m_resolve;
};

}  // namespace orb::ui
