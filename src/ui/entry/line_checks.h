#pragma once

#include "adjudication/list_check.h"
#include "session/situation.h"

#include <QLabel>
#include <QListWidget>

#include <optional>

namespace orb::ui {

/// Marks every line of the stage's list by what the checks say of it; tooltips tell the reasons.
void showMarks(QListWidget& list, const adjudication::ListCheck& check,
               const std::optional<session::StoppedLine>& stopped);

/// Tells how many units, or in the adjustments powers, are not yet provided for, and in the tooltip
/// which.
void showMissing(QLabel& label, const adjudication::ListCheck& check, model::Stage stage);

}  // namespace orb::ui
