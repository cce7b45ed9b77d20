#include "ui/widgets/message_boxes.h"
#include "ui/window/main_window.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <utility>

namespace orb {
namespace {

/// The whole window with the map 1000 pixels wide.
std::unique_ptr<ui::MainWindow> NewWindow() {
  ui::MessageBoxes messages(nullptr);
  const ui::Places places{ORB_SOURCE_DIR "/data",
                          std::filesystem::temp_directory_path() / "orb-window-bench"};
  auto window = std::make_unique<ui::MainWindow>(ui::startProgram(places, {}, messages), places);
  window->show();
  window->findChild<QAction*>(QStringLiteral("mnuMapZoom100"))->trigger();
  QApplication::processEvents();
  return window;
}

/// Till everything that is to be painted again has been.
void Settle() {
  QApplication::sendPostedEvents();
  QApplication::processEvents();
}

void Toggle(benchmark::State& state) {
  const auto window = NewWindow();
  auto* entry = window->findChild<QAction*>(QStringLiteral("mnuShowCentreCount"));
  while (state.KeepRunning()) {
    entry->trigger();
    Settle();
  }
}
BENCHMARK(Toggle)->Unit(benchmark::kMillisecond);

void Click(benchmark::State& state) {
  const auto window = NewWindow();
  auto* map = window->findChild<QWidget*>(QStringLiteral("picMap"));
  const QPointF place(map->width() * 0.2735, map->height() * 0.6065);
  while (state.KeepRunning()) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QMouseEvent event(type, place, map->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                        Qt::NoModifier);
      QApplication::sendEvent(map, &event);
    }
    Settle();
  }
}
BENCHMARK(Click)->Unit(benchmark::kMillisecond);

/// Files an order for the unit that was clicked, over and over.
void FileOrder(benchmark::State& state) {
  const auto window = NewWindow();
  auto* text = window->findChild<QLineEdit*>(QStringLiteral("txtOrder"));
  while (state.KeepRunning()) {
    text->setText(QStringLiteral("FRA A(Par) - Bur"));
    emit text->returnPressed();
    Settle();
  }
}
BENCHMARK(FileOrder)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace orb

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
