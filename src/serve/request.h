#pragma once

#include "json/rapid/input.h"

#include "session/situation.h"
#include "settings/map_options.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orb::serve {

enum class Command : std::uint8_t { New, Resolve, Next, Possible, Check, Map };

/// What is asked for.
struct Request {
  serve::Command Command = Command::New;
  session::Situation Situation;                    ///< with the rules that are asked for
  std::optional<std::vector<std::string>> Orders;  ///< of the stage
  std::optional<std::string> Title;
  bool IsBlank = false;
  bool Yes = false;      ///< the answer to every question
  bool Reasons = false;  ///< why each order came out as it did
  bool Compare = false;  ///< with the other rules
  settings::MapOptions Map;
  int Width = 0;  ///< of a map, in pixels; 0: the background's own
};

/// The id of a request, as JSON: a text or a whole number; empty where there is none.
std::string IdOf(const json::Node& request);

/// As requests have it.
std::string_view NameOf(Command command);

/// Reads a request; its situation has a map already. Throws FatalError.
void TakeRequest(const json::Node& node, Request& request);

}  // namespace orb::serve
