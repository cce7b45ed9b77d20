#include "bindings.h"
#include "texts.h"

#include "model/errors.h"

#include <algorithm>
#include <exception>
#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

namespace py = pybind11;

namespace orb::python {
namespace {

py::object Make(const py::object& type, const std::exception& problem) {
  std::string sentence = model::SentenceOf(problem);
  std::ranges::replace(sentence, '\r', '\n');
  return type(Text(sentence));
}

}  // namespace

void DefineErrors(py::module_& module) {
  static const py::exception<model::FatalError> error(module, "Error");
  static const py::exception<Abandoned> abandoned(module, "Abandoned", error.ptr());
  error.attr("__doc__") = "What the program refuses, with its own sentence.";
  abandoned.attr("__doc__") =
      "A question of the program was answered No; the game is as it was. stopped_at is the line of "
      "the list, counted from 0, that it is about, or None.";
  py::register_exception_translator([](std::exception_ptr thrown) {
    try {
      if (thrown) std::rethrow_exception(thrown);
    } catch (const Abandoned& problem) {
      const py::object value = Make(abandoned, problem);
      value.attr("stopped_at") = problem.StoppedAt;
      PyErr_SetObject(abandoned.ptr(), value.ptr());
    } catch (const model::FatalError& problem) {
      PyErr_SetObject(error.ptr(), Make(error, problem).ptr());
    }
  });
}

}  // namespace orb::python

PYBIND11_MODULE(_orb, module) {
  orb::python::DefineErrors(module);
  orb::python::DefineResults(module);
  orb::python::DefineGame(module);
  module.def("_set_home", &orb::python::SetHome);
}
