#pragma once

#include "coverage.h"
#include "figures.h"
#include "hit.h"
#include "tables.h"

#include <QString>

namespace mapmaker {

/// Writes one pair of touching locations per line: two abbreviations and the length of the contact.
void WriteContacts(const QString& path, const Contacts& contacts,
                   const std::vector<Location>& locations);

/// Writes how far figures run over the borders of their province and over each other, in square
/// pixels of the map as the program shows it, the worst first.
void WriteOverlaps(const QString& path, const std::vector<Figure>& figures,
                   const Coverage& coverage);

}  // namespace mapmaker
