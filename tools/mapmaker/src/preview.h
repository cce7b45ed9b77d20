#pragma once

#include "tables.h"

#include <QImage>

#include <vector>

namespace mapmaker {

/// `map` with a label, a dot, a unit everywhere and, if wanted, dislodged units; much like the
/// program draws them.
QImage DrawPreview(const QImage& map, const Tables& tables, bool withDislodged);

}  // namespace mapmaker
