#pragma once

#include "history/timeline.h"

#include <QAbstractSlider>
#include <QString>

#include <vector>

namespace orb::ui {

/// "Spring 1901, before retreats": what a stage of a game is called, in the words of the map.
QString momentName(const history::Moment& moment);

/// The stages of a game as marks on a line; the value is the one that is shown. The form of a mark
/// tells its stage, the present one is set apart. The arrow keys step through.
class HistoryLine : public QAbstractSlider {
  Q_OBJECT

 public:
  explicit HistoryLine(QWidget* parent = nullptr);

  void setMoments(const std::vector<history::Moment>& moments, std::size_t present);

  /// Sets the mark that is shown, which is no choice of the user's.
  void showAt(std::size_t index);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool event(QEvent* event) override;

 private:
  double placeOf(int index) const;
  int nearest(double x) const;
  void paintMark(QPainter& painter, int index) const;
  void paintYears(QPainter& painter) const;
  void describe();

  std::vector<history::Moment> m_moments;
  int m_present = 0;
};

}  // namespace orb::ui
