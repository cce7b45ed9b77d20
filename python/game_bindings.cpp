#include "bindings.h"
#include "json/situation.h"
#include "texts.h"

#include "model/counts.h"
#include "orders/order_list.h"
#include "session/queries.h"

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

namespace py = pybind11;
using namespace py::literals;

namespace orb::python {
namespace {

/// By the powers' abbreviations: name, number of centres, number of units.
py::dict Powers(const Game& game) {
  py::dict powers;
  for (const model::Country& country : game.State().Countries) {
    const model::PowerCount count = model::CountPower(game.State(), country.Abbreviation);
    powers[Text(country.Abbreviation)] =
        py::make_tuple(Text(country.Name), count.Centres, count.Units);
  }
  return powers;
}

py::dict Owners(const Game& game) {
  py::dict owners;
  const model::Map& map = *game.State().Map;
  for (int i = 1; i <= map.Provinces.Count(); ++i) {
    const std::string& owner = game.State().Provinces[i].Owner;
    if (model::IsCentre(map, i) && !owner.empty())
      owners[Text(map.Provinces[i].Name)] = Text(owner);
  }
  return owners;
}

py::dict Players(const Game& game) {
  py::dict players;
  for (const model::Country& country : game.State().Countries) {
    if (!country.PlayerName.empty()) players[Text(country.Abbreviation)] = Text(country.PlayerName);
  }
  return players;
}

py::dict PossibleOrders(const Game& game) {
  py::dict orders;
  for (const session::Choices& choices : session::PossibleOrders(game.Now()))
    orders[Text(choices.Unit.empty() ? choices.Power : choices.Unit)] = Texts(choices.Orders);
  return orders;
}

std::optional<std::vector<std::string>> LinesOf(const std::optional<py::object>& orders) {
  if (!orders) return std::nullopt;
  return Lines(*orders);
}

/// Problems by what they are about: lines, units without an order, powers.
py::dict Check(const Game& game, const std::optional<py::object>& orders,
               const std::string& rules) {
  const session::Situation asked = game.Asked(LinesOf(orders), rules);
  const adjudication::ListCheck check = session::CheckOrders(asked);
  py::dict lines;
  const std::vector<std::string>& list = orders::StageList(asked.Game);
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (!check.Lines[i].empty()) lines[Text(list[i])] = Texts(check.Lines[i]);
  }
  py::dict powers;
  for (const auto& [power, problem] : check.Powers)
    powers[Text(power)] = Text(problem);
  return py::dict("orders"_a = lines, "unordered"_a = Texts(check.Unordered), "powers"_a = powers);
}

/// What comes of an order and why, and the changes that would have changed it.
py::tuple WhatIf(const Game& game, const std::string& order,
                 const std::optional<py::object>& orders, const std::string& rules) {
  const session::Situation asked = game.Asked(LinesOf(orders), rules);
  const session::Question question = session::Ask(asked, Bytes(order));
  return py::make_tuple(Text(question.Sentence), session::SingleChanges(question));
}

void DefineFiles(py::class_<Game>& game) {
  game.def(py::init([](const std::optional<std::string>& title, bool blank) {
             return Game::New(title ? std::optional(Bytes(*title)) : std::nullopt, blank);
           }),
           "title"_a = py::none(), py::kw_only(), "blank"_a = false);
  game.def_static("read", &Game::Read, "path"_a, "Reads a game file.");
  game.def_static(
      "from_bytes", [](const py::bytes& data) { return Game::FromBytes(data); }, "data"_a,
      "The game of a game file's bytes.");
  game.def_static("from_json", &Game::FromJson, "text"_a,
                  "The game of a situation in JSON (docs/json.md), or of an answer that has one.");
  game.def("save", &Game::Save, "path"_a,
           "Writes the game to a file, which is replaced whole or not at all.");
  game.def(
      "to_bytes", [](const Game& self) { return py::bytes(self.ToBytes()); },
      "The bytes of the game file.");
  game.def(
      "to_json", [](const Game& self) { return json::SituationText(self.State()); },
      "The situation in JSON (docs/json.md).");
  game.def(
      "copy", [](const Game& self) { return self; }, "A game of its own.");
  game.def("__copy__", [](const Game& self) { return self; });
  game.def(
      "__deepcopy__", [](const Game& self, const py::dict& /*memo*/) { return self; }, "memo"_a);
  game.def(py::pickle(
      [](const Game& self) {
        return py::make_tuple(py::bytes(self.ToBytes()), Texts(self.Orders()));
      },
      [](const py::tuple& state) {
        Game loaded = Game::FromBytes(py::cast<py::bytes>(state[0]));
        loaded.SetOrders(Lines(state[1]));
        return loaded;
      }));
}

void DefineFacts(py::class_<Game>& game) {
  game.def_property(
      "title", [](const Game& self) { return Text(self.State().Title); },
      [](Game& self, const std::string& title) { self.SetTitle(Bytes(title)); },
      "Its title, which can be set.");
  game.def_property_readonly(
      "season", [](const Game& self) { return Text(self.State().Season); },
      "The season's name, as Spring.");
  game.def_property_readonly(
      "year", [](const Game& self) { return self.State().Year; }, "The year, a whole number.");
  game.def_property_readonly(
      "stage", [](const Game& self) { return Text(StageText(self.State())); },
      "moves, retreats, adjustments or finished.");
  game.def_property_readonly(
      "units",
      [](const Game& self) {
        return std::vector<model::Unit>(self.State().Units.begin(), self.State().Units.end());
      },
      "The units on the board, dislodged ones too.");
  game.def_property_readonly("powers", Powers,
                             "By abbreviation: the name, how many centres, how many units.");
  game.def_property_readonly("owners", Owners, "Who owns a centre, by the centre's abbreviation.");
  game.def_property_readonly("players", Players,
                             "The players' names, by their powers' abbreviations.");
  game.def_property(
      "orders", [](const Game& self) { return Texts(self.Orders()); },
      [](Game& self, const py::object& orders) { self.SetOrders(Lines(orders)); },
      "The lines of the stage, which can be set as a text or as lines.");
}

void DefineCommands(py::class_<Game>& game) {
  game.def("possible_orders", PossibleOrders,
           "All orders that are possible: by unit, or in the adjustments by power.");
  game.def(
      "resolve",
      [](Game& self, const std::optional<py::object>& orders, const std::string& rules, bool yes,
         bool reasons,
         bool compare) { return self.Resolve(LinesOf(orders), rules, yes, reasons, compare); },
      "orders"_a = py::none(), py::kw_only(), "rules"_a = "orb", "yes"_a = false,
      "reasons"_a = true, "compare"_a = false,
      "Resolves the stage, with the game's own orders unless others are given. A question is "
      "answered No, which raises Abandoned, unless yes; reasons tells why each order came out as "
      "it did, compare which come out otherwise by the other rules.");
  game.def("next_season", &Game::NextSeason, "Starts the season that follows a finished one.");
  game.def("undo_season", &Game::UndoSeason, "Puts the season back to its start.");
  game.def("check", Check, "orders"_a = py::none(), py::kw_only(), "rules"_a = "orb",
           "The problems of orders: by line, units without an order, and by power.");
  game.def("what_if", WhatIf, "order"_a, "orders"_a = py::none(), py::kw_only(), "rules"_a = "orb",
           "What comes of an order of the moves and why, and the changes of one order after which "
           "it would have come out otherwise.");
}

/// A method that draws the map, as a text of SVG or the bytes of a PNG.
void DefineDrawing(py::class_<Game>& game, const char* name, bool isSvg) {
  game.def(
      name,
      [isSvg](const Game& self, int width, const std::string& mode, bool orders, bool centreCount,
              bool borders, bool centreOwners) -> py::object {
        const std::string bytes =
            self.Draw({mode, width, orders, centreCount, borders, centreOwners}, isSvg);
        if (isSvg) return py::str(bytes);
        return py::bytes(bytes);
      },
      "width"_a = 0, py::kw_only(), "mode"_a = "colour3d", "orders"_a = false,
      "centre_count"_a = false, "borders"_a = false, "centre_owners"_a = false,
      isSvg ? "The map as SVG; the width is in pixels."
            : "The map as PNG; the width is in pixels.");
}

/// How a notebook shows the game.
std::string NotebookPicture(const Game& game, bool isSvg) {
  constexpr int width = 900;
  const bool hasOrders = !session::IsFinished(game.Now());
  return game.Draw({"colour3d", width, hasOrders, false, false, false}, isSvg);
}

void DefineForNotebooks(py::class_<Game>& game) {
  game.def("_repr_svg_", [](const Game& self) { return NotebookPicture(self, true); });
  game.def("_repr_png_", [](const Game& self) { return py::bytes(NotebookPicture(self, false)); });
  game.def("__repr__", [](const Game& self) {
    const model::GameState& state = self.State();
    std::string text = "<orb.Game \"" + state.Title;
    text.append("\", ").append(state.Season).append(" ").append(std::to_string(state.Year));
    return Text(text.append(", ").append(StageText(state)).append(">"));
  });
}

}  // namespace

void DefineGame(py::module_& module) {
  py::class_<Game> game(module, "Game",
                        "One game: its position and the stage that its season is in.");
  DefineForNotebooks(game);
  DefineFiles(game);
  DefineFacts(game);
  DefineCommands(game);
  DefineDrawing(game, "svg", true);
  DefineDrawing(game, "png", false);
}

}  // namespace orb::python
