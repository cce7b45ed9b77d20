#pragma once

#include "coverage.h"

#include <QImage>

#include <map>
#include <utility>

namespace mapmaker {

/// The picture whose colour numbers are rows of prov.dat: 1 for the first of the `locations` first
/// areas, 0 where nobody can be.
QImage DrawHitPicture(const Coverage& coverage, std::size_t locations);

/// How long two rows of the hit picture touch, in pixel edges; the smaller row comes first.
using Contacts = std::map<std::pair<int, int>, int>;

Contacts FindContacts(const QImage& hitPicture);

}  // namespace mapmaker
