#pragma once

#include <QMenu>

namespace orb::ui {

/// What the program is.
class HelpMenu : public QMenu {
  Q_OBJECT

 public:
  explicit HelpMenu(QWidget* window);

 private:
  void about();

  QWidget* m_window;
};

}  // namespace orb::ui
