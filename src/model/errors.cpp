#include "model/errors.h"

#include "text/encoding.h"

#include <filesystem>
#include <new>

namespace orb::model {

std::string SentenceOf(const std::exception& problem) {
  // A length that no text can have is asked for where memory would run out next.
  if (dynamic_cast<const std::bad_alloc*>(&problem) != nullptr ||
      dynamic_cast<const std::length_error*>(&problem) != nullptr) {
    return "There is not enough memory for this.";
  }
  if (const auto* const failure =
          dynamic_cast<const std::filesystem::filesystem_error*>(&problem)) {
    return "Cannot use " + text::NameInText(failure->path1().string()) + ": " +
           text::NameInText(failure->code().message()) + ".";
  }
  return problem.what();
}

}  // namespace orb::model
