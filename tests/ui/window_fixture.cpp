#include "ui/window_fixture.h"

#include "support/scripted_messages.h"
#include "ui/modal_script.h"

#include <QListWidget>
#include <QTest>

#include <algorithm>
#include <iterator>

namespace orb::tests {

void WindowTest::Open(const std::filesystem::path& game) {
  ScriptedMessages none;
  window_.reset();
  const ui::Places places{program_.Path(), directory_.Path() / "config",
                          directory_.Path() / "state"};
  window_ = std::make_unique<ui::MainWindow>(ui::startProgram(places, game, none), places);
  window_->show();
  window_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
}

std::vector<std::string> WindowTest::Lines(const char* list) const {
  std::vector<std::string> lines;
  const auto items = Find<QListWidget>(list).findItems({}, Qt::MatchContains);
  std::transform(items.begin(), items.end(), std::back_inserter(lines),
                 [](const QListWidgetItem* item) { return item->text().toStdString(); });
  return lines;
}

QImage WindowTest::Map() const {
  // Lists lay out their lines, and splitters their parts, one after the other.
  QImage map;
  const auto isTheSameAgain = [&] {
    QImage before = Find<QWidget>("picMap").grab().toImage();
    map.swap(before);
    return map == before;
  };
  for (int k = 0; k < 50 && !isTheSameAgain(); ++k)
    QTest::qWait(20);
  return map;
}

std::string WindowTest::StagePanel() const {
  QStringList shown;
  for (const char* name : {"fraOrders", "fraRetreats", "fraAdjustments", "fraSeasonFinished"}) {
    if (Find<QWidget>(name).isVisible()) shown << QLatin1String(name);
  }
  return shown.join(QLatin1Char(' ')).toStdString();
}

void WindowTest::Enter(const QString& order) {
  Type(order);
  Press(Qt::Key_Return);
}

void WindowTest::Resolve(const QString& unordered) {
  std::deque<ModalScript::Step> steps;
  if (!unordered.isEmpty()) {
    steps.push_back(
        Answered("Warning: " + unordered + " unordered.\nContinue?", Qt::Key_A, Qt::AltModifier));
  }
  const ModalScript answers(std::move(steps));
  Press(Qt::Key_R, Qt::AltModifier);
}

}  // namespace orb::tests
