#pragma once

#include "shape.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace mapmaker {

/// The object a JSON file holds; throws std::runtime_error where it cannot be read.
QJsonObject ReadJson(const QString& path);

/// An array of [x, y] pairs.
Line ToLine(const QJsonArray& points);

}  // namespace mapmaker
