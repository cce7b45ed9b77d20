// The start of the program as its own main does it, up to the first picture on the screen.
#include "first_paint.h"

#include "ui/widgets/message_boxes.h"
#include "ui/window/main_window.h"

#include <filesystem>
#include <utility>

int main(int argc, char* argv[]) {
  const QApplication application(argc, argv);
  orb::ui::MessageBoxes messages(nullptr);
  const orb::ui::Places places{ORB_SOURCE_DIR "/data",
                               std::filesystem::temp_directory_path() / "orb-start-bench"};
  orb::ui::Start start = orb::ui::startProgram(places, {}, messages);
  orb::ui::MainWindow window(std::move(start), places);
  window.show();
  const orb::EndAfterFirstPaint end(*window.findChild<QWidget*>(QStringLiteral("picMap")));
  return QApplication::exec();
}
