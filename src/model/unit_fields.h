#pragma once

#include "model/record_file.h"

#include <string_view>

namespace orb::model {

/// The next field as one of the seven powers.
std::string_view ReadPower(RecordReader& reader);

/// The next field as "A" or "F".
std::string_view ReadUnitType(RecordReader& reader);

}  // namespace orb::model
