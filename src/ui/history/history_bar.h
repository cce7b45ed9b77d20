#pragma once

#include "ui/history/history_line.h"
#include "ui/history/season_files.h"
#include "ui/widgets/controls.h"

#include <QFrame>

class QToolButton;

namespace orb::ui {

/// Below the map: the stages of the game that lie in files, one of which can be looked at, and the
/// ways to play them and to see the centres over the years. Hidden where there are no others.
class HistoryBar : public QFrame {
  Q_OBJECT

 public:
  HistoryBar(Desk& desk, QWidget* parent);

  /// Whether the user wants it, and whether the window has a place for it now.
  void setWanted(bool wanted);
  void setRoom(bool hasRoom);

  /// The game as it is, with what the files beside its own tell of its season.
  session::Situation story() const;

  HistoryLine& line() { return *m_line; }

 signals:
  void playWanted(const std::vector<model::GameState>& games);
  /// It was shown or hidden.
  void shown();
  void noted(const QString& text);

 private:
  QToolButton* addButton(const QString& name, const QString& icon, const QString& tip);
  void showStages();
  void showPlace();
  void choose(int index);
  void showCentres();
  void decide();

  Desk& m_desk;
  SeasonFiles m_files;
  HistoryLine* m_line;
  bool m_wanted = false;
  bool m_hasRoom = true;
};

}  // namespace orb::ui
