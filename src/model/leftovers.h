#pragma once

#include <string>
#include <string_view>

namespace orb::model {

/// What the name of a file begins with that is written next to the one whose place it is to take;
/// six letters or digits follow.
constexpr std::string_view UnfinishedPrefix = ".orb-saving-";

/// Locks a file that is being written against RemoveLeftovers, until it is closed.
void LockUnfinished(int descriptor);

/// Removes the unfinished files that killed programs have left in the directory (with its "/";
/// empty for the working directory): those that no living program holds locked. A run over many
/// files looks into a directory once a second at most.
void RemoveLeftovers(const std::string& directory);

}  // namespace orb::model
