#pragma once

#include "model/game_state.h"
#include "report/wrapped_text.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace orb::report {

/// The situation as plain text for a mail or a printer: title, season and stage, the report, supply
/// centres, adjustments due, units, players and free text. Orders not yet resolved are left out:
/// they are secret. Lines end in LF and are at most TextReportWidth bytes long. A remark stands
/// below the season.
std::string TextReport(const model::GameState& game, std::string_view remark = {});

/// Writes the text report to a file, whole or not at all; its lines end in CR LF. Throws FileError.
void WriteTextReport(const model::GameState& game, const std::filesystem::path& file,
                     std::string_view remark = {});

}  // namespace orb::report
