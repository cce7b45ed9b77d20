#pragma once

#include "ui/session/desk.h"
#include "ui/widgets/notice_banner.h"

namespace orb::ui {

/// Says above the map which stage of the game's history is looked at, and leads back to the game as
/// it is, by its button or Esc, or opens the stage's file as the game. Hidden otherwise.
class PastBanner : public NoticeBanner {
  Q_OBJECT

 public:
  PastBanner(Desk& desk, QWidget* window);

 private:
  void showPast();
  void goOn();

  Desk& m_desk;
};

}  // namespace orb::ui
