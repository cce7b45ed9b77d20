#pragma once

#include "history/centre_counts.h"

#include <QDialog>
#include <QWidget>

#include <vector>

namespace orb::ui {

/// A line for each power: how many centres it owned, season by season.
class CentresChart : public QWidget {
  Q_OBJECT

 public:
  CentresChart(model::CountryTable countries, std::vector<history::SeasonCentres> seasons);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPointF pointOf(std::size_t season, double centres) const;
  void paintGrid(QPainter& painter) const;
  void paintPowers(QPainter& painter) const;

  model::CountryTable m_countries;
  std::vector<history::SeasonCentres> m_seasons;
  int m_most = 4;
};

/// The chart of the centres over the years.
class CentresDialog : public QDialog {
  Q_OBJECT

 public:
  CentresDialog(const model::CountryTable& countries, std::vector<history::SeasonCentres> seasons,
                QWidget* parent);
};

}  // namespace orb::ui
