#include "ui/entry/season_finished_panel.h"

#include "ui/widgets/controls.h"

#include <QVBoxLayout>

namespace orb::ui {
namespace {

QLabel* newText(const QString& text) {
  auto* label = new QLabel(text);
  label->setWordWrap(true);
  return label;
}

}  // namespace

SeasonFinishedPanel::SeasonFinishedPanel(Desk& desk, QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("fraSeasonFinished"));
  auto* next = newButton(QStringLiteral("butNextSeason"), tr("&Next season"));
  // Marked as the way on, but the keyboard goes to the report first.
  next->setDefault(true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(newHeading(tr("Season finished")));
  column->addWidget(
      newText(tr("Advancing to the next season will clear all text stored in the "
                 "game situation. ")));
  column->addWidget(newText(tr("Save the game first or export the text if you want to keep it.")));
  column->addWidget(next, 0, Qt::AlignRight);
  connect(next, &QPushButton::clicked, &desk, &Desk::nextSeason);
}

}  // namespace orb::ui
