#pragma once

#include "model/map.h"

#include <QComboBox>
#include <QString>

#include <functional>
#include <string>
#include <string_view>

namespace orb::ui {

/// Locations to choose from, in the order of their abbreviations, found by typing one.
class PlaceBox : public QComboBox {
  Q_OBJECT

 public:
  explicit PlaceBox(const QString& name) { setObjectName(name); }

  /// Offers the locations that fit. Before them stands, unless its caption is empty, an entry for
  /// no location. Nothing is chosen at first.
  void offer(const model::Map& map, const std::function<bool(std::string_view location)>& fits,
             const QString& none = {});

  /// Chooses a location. One that is not offered, as a file may hold it, is offered from now on.
  void choose(const std::string& location);

  /// The chosen location's abbreviation; empty when none is.
  std::string location() const { return currentData().toByteArray().toStdString(); }
};

}  // namespace orb::ui
