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

void DefineOrderResults(py::module_& module) {
  py::class_<OrderOutcome>(module, "OrderResult", "What came of one order.")
      .def_property_readonly("power", TextOf(&OrderOutcome::Power), "Its power, as ENG.")
      .def_property_readonly("type", TextOf(&OrderOutcome::UnitType), "A or F.")
      .def_property_readonly("location", TextOf(&OrderOutcome::Location),
                             "Where the unit stands or is built.")
      .def_property_readonly(
          "order", [](const OrderOutcome& o) { return json::NameOf(o.Kind); },
          "Its kind; none: the line was not understood.")
      .def_property_readonly("other_location", OptionalTextOf(&OrderOutcome::OtherLocation),
                             "Where the unit stands that is supported or convoyed.")
      .def_property_readonly("destination", OptionalTextOf(&OrderOutcome::Destination),
                             "Where the move leads, also the supported or convoyed one.")
      .def_readonly("via_convoy", &OrderOutcome::ViaConvoy,
                    "Whether the move is carried by a fleet.")
      .def_readonly("unordered", &OrderOutcome::Unordered,
                    "Whether nobody wrote it: the unit had no order.")
      .def_property_readonly(
          "outcome", [](const OrderOutcome& o) { return json::NameOf(o.Outcome); },
          "succeeded, failed, cut or void.");
}

void DefineComparisons(py::module_& module) {
  using session::Difference;
  py::class_<Difference>(module, "Difference",
                         "An order that comes out otherwise by the other rules.")
      .def_property_readonly("order", TextOf(&Difference::Text), "The order.")
      .def_property_readonly("here", OptionalTextOf(&Difference::Here),
                             "What came of it by the rules that were asked for, and why.")
      .def_property_readonly("there", TextOf(&Difference::There),
                             "What would have come of it by the others, and why.");
  using session::Alternative;
  py::class_<Alternative>(
      module, "Alternative",
      "Changed orders of one power after which an order would have come out otherwise.")
      .def_property_readonly("power", TextOf(&Alternative::Power),
                             "The power whose orders are changed.")
      .def_property_readonly(
          "orders", [](const Alternative& one) { return Texts(one.Orders); },
          "The orders in place of those that were given.")
      .def_property_readonly("reason", TextOf(&Alternative::Sentence),
                             "What comes of the order then, and why.")
      .def_readonly("other_changes", &Alternative::OtherChanges,
                    "How many other orders come out otherwise, too.");
}

void DefineResolution(py::module_& module) {
  py::class_<ReportLine>(module, "ReportLine", "A line of the report; as a text: the line alone.")
      .def_property_readonly("text", TextOf(&ReportLine::Line), "The line.")
      .def_property_readonly(
          "failed", [](const ReportLine& line) { return line.Note.Failed; },
          "Whether it tells of an order that failed.")
      .def_property_readonly(
          "reason", [](const ReportLine& line) { return TextOrNone(line.Note.Reason); },
          "Why the order came out so.")
      .def_property_readonly(
          "locations", [](const ReportLine& line) { return Texts(line.Note.Locations); },
          "Where the units stand that had a part in it, its own first.")
      .def("__str__", TextOf(&ReportLine::Line));
  py::class_<Resolution>(module, "Resolution",
                         "What came of resolving a stage; as a text: the report.")
      .def_property_readonly(
          "stage", [](const Resolution& r) { return model::StageName(r.Stage); },
          "The stage that was resolved.")
      .def_property_readonly(
          "rules", [](const Resolution& r) { return session::NameOf(r.After->ResolvedBy); },
          "orb or usual.")
      .def_property_readonly("report", Report, "Its lines, with the reasons.")
      .def_property_readonly(
          "results", [](const Resolution& r) { return r.After->Outcomes; },
          "What came of each order, also of those that nobody wrote.")
      .def_property_readonly(
          "differences", [](const Resolution& r) { return r.After->Differences; },
          "Where comparing was asked for.")
      .def_readonly("messages", &Resolution::Messages, "What the program said and asked.")
      .def("__str__", [](const Resolution& r) { return Text(JoinedReport(r)); });
}

}  // namespace

void DefineResults(py::module_& module) {
  py::class_<json::Message>(module, "Message",
                            "What the program says or asks, as in a message box.")
      .def_property_readonly("text", TextOf(&json::Message::Text), "What it says.")
      .def_readonly("answer", &json::Message::Answer,
                    "What a question was answered; None: it was no question.")
      .def("__str__", TextOf(&json::Message::Text));
  using model::Unit;
  py::class_<Unit>(module, "Unit", "An army or a fleet; as a text: FRA A(Par).")
      .def_property_readonly("power", TextOf(&Unit::Power), "Its power, as ENG.")
      .def_property_readonly("type", TextOf(&Unit::UnitType), "A or F.")
      .def_property_readonly("location", TextOf(&Unit::Location),
                             "Where it stands, a coast with its dot: Stp.n.")
      .def_property_readonly(
          "dislodged", [](const Unit& unit) { return unit.Status == model::Dislodged; },
          "Whether it must retreat.")
      .def_property_readonly("dislodged_from", OptionalTextOf(&Unit::DislodgedFrom),
                             "Where the attack on it came from.")
      .def("__str__", [](const Unit& unit) { return Text(model::UnitText(unit)); });
  DefineResolution(module);
  DefineOrderResults(module);
  DefineComparisons(module);
}

}  // namespace orb::python
