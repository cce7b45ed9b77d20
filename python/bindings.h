#pragma once

#include "game.h"

#include <pybind11/pybind11.h>

namespace orb::python {

/// What resolving, checking and asking give.
void DefineResults(pybind11::module_& module);

/// The class Game.
void DefineGame(pybind11::module_& module);

/// The core's errors, as exceptions with the core's sentence.
void DefineErrors(pybind11::module_& module);

}  // namespace orb::python
