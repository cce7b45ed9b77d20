#pragma once

#include "adjudication/list_check.h"
#include "session/situation.h"

#include <QLabel>
#include <QListWidget>

#include <optional>

namespace orb::ui {

/// Marks every line of the stage's list by what the checks say of it; tooltips give the reasons.
/// The line at which a resolution was abandoned has a mark of its own, and so has one that would
/// pass but that the other rules read otherwise.
void showMarks(QListWidget& list, const adjudication::ListCheck& check,
               const std::vector<std::string>& otherReadings,
               const std::optional<session::StoppedLine>& stopped);

/// Says how many units still need orders, or in the adjustments which powers; the tooltip names the
/// units, and says what does not fit.
void showMissing(QLabel& label, const adjudication::ListCheck& check, const model::GameState& game);

}  // namespace orb::ui
