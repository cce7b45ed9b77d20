#pragma once

#include "model/country.h"
#include "render/qt/picture_cache.h"

#include <QWidget>

namespace orb::ui {

/// What a power's colours look like on the map: an army, a fleet and a count of its centres, drawn
/// by the same functions that draw the map.
class ColourSample : public QWidget {
  Q_OBJECT

 public:
  /// The table must outlive the sample, which shows it as it stands when it is painted.
  ColourSample(const model::CountryTable& colours, int power, QWidget* parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const model::CountryTable& m_colours;
  int m_power;
  render::PictureCache m_noPictures;
};

}  // namespace orb::ui
