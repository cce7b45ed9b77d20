#pragma once

#include "model/record_file.h"

#include <string>
#include <string_view>

namespace orb::model {

/// What is expected, and the seven powers: "a unit's power (one of AUS, ...)".
std::string ExpectedPower(std::string_view expected);

/// The next field as one of the seven powers.
std::string_view ReadPower(RecordReader& reader);

/// The next field as "A" or "F".
std::string_view ReadUnitType(RecordReader& reader);

}  // namespace orb::model
