#include "bindings.h"
#include "json/names.h"
#include "texts.h"

#include "model/lookups.h"

#include <pybind11/stl.h>

namespace py = pybind11;

namespace orb::python {
namespace {

using orders::OrderOutcome;

/// An attribute that is a text of the core.
template <class Record>
auto TextOf(std::string Record::*member) {
  return [member](const Record& record) { return Text(record.*member); };
}

/// A text whose absence is told as None.
py::object TextOrNone(const std::string& text) {
  if (text.empty()) return py::none();
  return Text(text);
}

template <class Record>
auto OptionalTextOf(std::string Record::*member) {
  return [member](const Record& record) { return TextOrNone(record.*member); };
}

/// A line of the report, with what is known of it.
struct ReportLine {
  std::string Line;
  session::ReportNote Note;
};

py::list Report(const Resolution& resolution) {
  const session::Situation& after = *resolution.After;
  py::list list;
  std::size_t row = 0;
  for (const std::string& line : after.Game.ReportLines) {
    list.append(
        ReportLine{line, row < after.Notes.size() ? after.Notes[row] : session::ReportNote()});
    ++row;
  }
  return list;
}

std::string JoinedReport(const Resolution& resolution) {
  std::string text;
  for (const std::string& line : resolution.After->Game.ReportLines)
    text.append(line).append("\n");
  return text;
}

void DefineOrders(py::module_& module) {
  py::class_<OrderOutcome>(module, "OrderResult")
      .def_property_readonly("power", TextOf(&OrderOutcome::Power))
      .def_property_readonly("type", TextOf(&OrderOutcome::UnitType))
      .def_property_readonly("location", TextOf(&OrderOutcome::Location))
      .def_property_readonly("order", [](const OrderOutcome& o) { return json::NameOf(o.Kind); })
      .def_property_readonly("other_location", OptionalTextOf(&OrderOutcome::OtherLocation))
      .def_property_readonly("destination", OptionalTextOf(&OrderOutcome::Destination))
      .def_readonly("via_convoy", &OrderOutcome::ViaConvoy)
      .def_readonly("unordered", &OrderOutcome::Unordered)
      .def_property_readonly("outcome",
                             [](const OrderOutcome& o) { return json::NameOf(o.Outcome); });
  using session::Difference;
  py::class_<Difference>(module, "Difference")
      .def_property_readonly("order", TextOf(&Difference::Text))
      .def_property_readonly("here", OptionalTextOf(&Difference::Here))
      .def_property_readonly("there", TextOf(&Difference::There));
  using session::Alternative;
  py::class_<Alternative>(module, "Alternative")
      .def_property_readonly("power", TextOf(&Alternative::Power))
      .def_property_readonly("orders", [](const Alternative& one) { return Texts(one.Orders); })
      .def_property_readonly("reason", TextOf(&Alternative::Sentence))
      .def_readonly("other_changes", &Alternative::OtherChanges);
}

}  // namespace

void DefineResults(py::module_& module) {
  py::class_<json::Message>(module, "Message")
      .def_property_readonly("text", TextOf(&json::Message::Text))
      .def_readonly("answer", &json::Message::Answer)
      .def("__str__", TextOf(&json::Message::Text));
  using model::Unit;
  py::class_<Unit>(module, "Unit")
      .def_property_readonly("power", TextOf(&Unit::Power))
      .def_property_readonly("type", TextOf(&Unit::UnitType))
      .def_property_readonly("location", TextOf(&Unit::Location))
      .def_property_readonly("dislodged",
                             [](const Unit& unit) { return unit.Status == model::Dislodged; })
      .def_property_readonly("dislodged_from", OptionalTextOf(&Unit::DislodgedFrom))
      .def("__str__", [](const Unit& unit) { return Text(model::UnitText(unit)); });
  py::class_<ReportLine>(module, "ReportLine")
      .def_property_readonly("text", TextOf(&ReportLine::Line))
      .def_property_readonly("failed", [](const ReportLine& line) { return line.Note.Failed; })
      .def_property_readonly("reason",
                             [](const ReportLine& line) { return TextOrNone(line.Note.Reason); })
      .def_property_readonly("locations",
                             [](const ReportLine& line) { return Texts(line.Note.Locations); })
      .def("__str__", TextOf(&ReportLine::Line));
  DefineOrders(module);
  py::class_<Resolution>(module, "Resolution")
      .def_property_readonly("stage", [](const Resolution& r) { return model::StageName(r.Stage); })
      .def_property_readonly(
          "rules", [](const Resolution& r) { return session::NameOf(r.After->ResolvedBy); })
      .def_property_readonly("report", Report)
      .def_property_readonly("results", [](const Resolution& r) { return r.After->Outcomes; })
      .def_property_readonly("differences",
                             [](const Resolution& r) { return r.After->Differences; })
      .def_readonly("messages", &Resolution::Messages)
      .def("__str__", [](const Resolution& r) { return Text(JoinedReport(r)); });
}

}  // namespace orb::python
