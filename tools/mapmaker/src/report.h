#pragma once

#include <QString>

#include "hit.h"
#include "tables.h"

namespace mapmaker {

/// Writes one pair of touching locations a line: two abbreviations and the length of the contact.
void WriteContacts(const QString& path, const Contacts& contacts,
                   const std::vector<Location>& locations);

}  // namespace mapmaker
