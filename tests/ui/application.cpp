#include "ui/window/application.h"

#include <gtest/gtest.h>

/// Fonts and windows need an application; it has no screen.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const orb::ui::Application application(argc, argv);
  return RUN_ALL_TESTS();
}
