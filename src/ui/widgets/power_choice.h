#pragma once

#include "model/country.h"

#include <QIcon>
#include <QString>

namespace orb::ui {

/// A disc in the colours of the power with this row; an empty one for row 0, no power.
QIcon powerIcon(const model::CountryTable& countries, int power);

/// "France"; "Neutral" for row 0.
QString powerName(const model::CountryTable& countries, int power);

}  // namespace orb::ui
