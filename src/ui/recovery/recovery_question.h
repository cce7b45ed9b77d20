#pragma once

#include "ui/recovery/recovery_keeper.h"
#include "ui/session/desk.h"

#include <QWidget>

#include <filesystem>

namespace orb::ui {

/// Offers the games that were not saved when their windows ended, the latest first, until one is
/// taken up. Those put off are offered again at the next start.
void offerRecovery(Desk& desk, RecoveryKeeper& keeper, const std::filesystem::path& folder,
                   QWidget* window);

}  // namespace orb::ui
