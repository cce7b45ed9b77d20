#pragma once

#include "hit.h"
#include "tables.h"

#include <QImage>
#include <QString>

namespace mapmaker {

/// Throws std::runtime_error, naming the pairs, unless just the pairs listed in the file touch and
/// each of them plainly.
void CheckContacts(const Contacts& contacts, const Tables& tables, const QString& neighboursPath);

/// Throws std::runtime_error, naming the provinces, where a unit point lies outside its province.
void CheckUnitPoints(const QImage& hitPicture, const Tables& tables);

}  // namespace mapmaker
