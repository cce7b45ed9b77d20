#pragma once

#include "ui/widgets/controls.h"

#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSlider>

namespace orb::ui {

/// The controls of an animation: buttons to play it and to go from season to season, a slider with
/// the name of the season shown, the speed, and Export and Close. It only reports what is wanted;
/// the player does it and tells the bar what to show.
class AnimationBar : public QFrame {
  Q_OBJECT

 public:
  explicit AnimationBar(QWidget* parent = nullptr);

  void setSeasonCount(int count);

  /// The slider's place, in seasons passed (2.5: half way through the third), and the name of the
  /// season shown.
  void showPosition(double position, const QString& season);
  /// Whether the one button for both says Stop or Play.
  void showPlaying(bool playing);

  /// Whether the mouse holds the slider.
  bool isHeld() const { return m_slider->isSliderDown(); }

  /// How many times as fast as normal.
  double speed() const { return m_speed->currentData().toDouble(); }

 signals:
  void playOrStop();
  void back();
  void forward();
  void first();
  void last();
  /// The slider was moved by the user, to so many seasons passed.
  void moved(double position);
  void exportWanted();
  void closed();

 private:
  using Command = void (AnimationBar::*)();

  QPushButton* addButton(const QString& name, const QString& icon, const QString& tip, int key,
                         Command command);
  void addTextButton(const QString& name, const QString& caption, const QString& tip,
                     Command command);
  void addSlider();
  void addSpeeds();

  QHBoxLayout* m_row;
  QPushButton* m_play = nullptr;
  QSlider* m_slider = nullptr;
  ElidedLabel* m_season = nullptr;
  QComboBox* m_speed = nullptr;
};

}  // namespace orb::ui
