#pragma once

#include "orders/exchange/read_line.h"
#include "ui/widgets/order_marks.h"

#include <QString>

#include <cstddef>
#include <string_view>
#include <utility>

namespace orb::ui {

/// The core's reasons begin with a small letter, to follow a colon; in the window they are
/// sentences.
QString sentence(QString text);

/// The mark in front of what was understood.
OrderMark markOf(const exchange::ReadLine& line, bool hasObjection);

/// What a screen reader says in place of the mark.
QString markText(OrderMark mark);

/// What was understood of a line, without what may speak against it.
QString meaningOf(const exchange::ReadLine& line);

/// The place of a fault in a text that begins at the offset, in characters: offset and length.
std::pair<int, int> faultIn(std::string_view text, exchange::Span fault, std::size_t offset);

}  // namespace orb::ui
