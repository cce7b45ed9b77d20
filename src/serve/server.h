#pragma once

#include "model/map.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace orb::serve {

/// Answers requests, one after another, and keeps nothing between them. docs/json.md tells what can
/// be asked for.
class Server {
 public:
  /// Loads the map when it is first needed, and the module that draws maps from its directory.
  Server(std::filesystem::path dataDirectory, std::filesystem::path moduleDirectory);

  /// The answer to a request; each is one line without its end. What cannot be done is told in the
  /// answer: nothing is thrown.
  std::string Answer(std::string_view request);

  /// The answer to a line that is too long to be read.
  static std::string TooLong(std::size_t longest);

 private:
  std::filesystem::path data_;
  std::filesystem::path modules_;
  std::shared_ptr<const model::Map> map_;
};

}  // namespace orb::serve
