#pragma once

#include "session/standing.h"

#include <QColor>
#include <QPushButton>

namespace orb::ui {

/// A button for one power: its initial on its colour, a mark and a figure for where it stands, and
/// below them a bar as long as the part of its orders that is there.
class PowerCell : public QPushButton {
  Q_OBJECT

 public:
  /// `name` is the power's full name.
  explicit PowerCell(QString name, QWidget* parent = nullptr);

  void setColours(const QColor& fill, const QColor& edge);
  void showStanding(const session::PowerStanding& standing, model::Stage stage);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintGround(QPainter& painter) const;
  void paintInitial(QPainter& painter, const QRectF& place) const;
  void paintFigure(QPainter& painter, const QRectF& place) const;
  void paintBar(QPainter& painter, const QRectF& place) const;

  QString m_name;
  QColor m_fill;
  QColor m_edge;
  session::PowerStanding m_standing;
  QString m_figure;
};

}  // namespace orb::ui
