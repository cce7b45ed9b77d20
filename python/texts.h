#pragma once

#include <pybind11/pybind11.h>
#include <string>
#include <string_view>
#include <vector>

namespace orb::python {

/// A text of the core, which has 8 bits, as Python has it.
pybind11::str Text(std::string_view text);
pybind11::list Texts(const std::vector<std::string>& texts);

/// The 8-bit form of a text from Python. Throws FatalError for a character that has none.
std::string Bytes(std::string_view utf8);

/// The 8-bit forms of lines, given as one text or as texts.
std::vector<std::string> Lines(const pybind11::object& lines);

}  // namespace orb::python
