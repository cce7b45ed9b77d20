#pragma once

#include "tables.h"

#include <QString>

namespace mapmaker {

/// Writes the locations in the record format of the program: CR LF, texts in double quotes.
void WriteProvDat(const QString& path, const Tables& tables);

}  // namespace mapmaker
