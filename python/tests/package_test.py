"""The package from outside: what a user of it relies on. The rules are tested where they are."""

import copy
import inspect
import json
import os
import pickle
import tempfile
import unittest
from pathlib import Path

import orb

EXAMPLES = Path(os.environ["ORB_EXAMPLES"])


def lines(path):
    return [line for line in path.read_text("cp1252").splitlines() if line.strip()]


class PackageTest(unittest.TestCase):
    def test_every_stage_of_the_examples_comes_out_as_it_stands_there(self):
        games = sorted(EXAMPLES.glob("*.orb"))
        stages = 0
        for before, after in zip(games, games[1:]):
            game = orb.Game.read(before)
            if not after.with_suffix(".txt").exists():
                game.next_season()
                self.assertEqual(game.to_bytes(), after.read_bytes())
                continue
            resolution = game.resolve(lines(after.with_suffix(".txt")), yes=True)
            self.assertEqual(str(resolution), after.with_suffix(".report.txt").read_text("cp1252"))
            reasons = lines(after.with_suffix(".reasons.txt"))
            for line, reason in zip(resolution.report, reasons, strict=True):
                self.assertTrue(reason.endswith(line.reason or ""), reason)
            self.assertEqual(game.to_bytes(), after.read_bytes())
            stages += 1
        self.assertGreater(stages, 10)

    def test_a_game_survives_every_way_out_and_back(self):
        game = orb.Game("Caf\u00e9 \u20ac")
        game.orders = ["ENG F(Lon) - NTH"]
        with tempfile.TemporaryDirectory() as directory:
            path = Path(directory) / "a.orb"
            game.copy().save(path)
            ways = [
                orb.Game.read(path),
                orb.Game.from_bytes(game.to_bytes()),
                orb.Game.from_json(game.to_json()),
                pickle.loads(pickle.dumps(game)),
                copy.copy(game),
                copy.deepcopy(game),
            ]
        for other in ways:
            self.assertEqual(other.to_bytes(), game.to_bytes())
            self.assertEqual((other.title, other.orders), ("Caf\u00e9 \u20ac", ["ENG F(Lon) - NTH"]))
            other.resolve(yes=True)
        self.assertEqual(game.stage, "moves")
        self.assertEqual(json.loads(game.to_json())["format"], "orb")

    def test_what_is_refused_raises_the_sentence_and_changes_nothing(self):
        game = orb.Game()
        before = game.to_bytes()
        cases = [
            (lambda: orb.Game.read("/nonexistent.orb"), "No such file"),
            (lambda: orb.Game.from_json("{}"), 'has no "situation"'),
            (lambda: orb.Game.from_bytes(b"nothing"), "is no game file"),
            (game.next_season, "The season is not finished"),
            (game.undo_season, "nothing to take back"),
            (lambda: game.resolve(rules="mine"), "There are no rules"),
            (lambda: game.resolve(["\u0142"]), "without an 8-bit form"),
            (lambda: game.what_if("FRA A(Lon)"), ""),
            (lambda: game.svg(mode="pink"), "The mode is one of"),
            (lambda: game.png(-1), ""),
        ]
        for command, sentence in cases:
            with self.assertRaises(orb.Error) as caught:
                command()
            self.assertIn(sentence, str(caught.exception))
        with self.assertRaises(orb.Abandoned) as caught:
            game.resolve([f"{unit} hold" for unit in game.units] + ["FRA A(Ber) - Mun"])
        self.assertEqual(caught.exception.stopped_at, 22)
        self.assertIn("no such unit", str(caught.exception))
        self.assertEqual(game.to_bytes(), before)

    def test_orders_are_listed_checked_resolved_by_either_rules_and_explained(self):
        game = orb.Game()
        possible = game.possible_orders()
        self.assertEqual(set(possible), {str(unit) for unit in game.units})
        self.assertIn("ENG F(Lon) - NTH", possible["ENG F(Lon)"])
        problems = game.check("ENG F(Lon) - Mos\n\nFRA A(Par) - Bur\n", rules="usual")
        self.assertEqual(list(problems["orders"]), ["ENG F(Lon) - Mos"])
        self.assertEqual(len(problems["unordered"]), 20)
        orders = ["FRA A(Par) - Bur", "GER A(Mun) - Bur"]
        sentence, alternatives = game.what_if("FRA A(Par)", orders)
        self.assertIn("rival", sentence)
        self.assertIn(["FRA A(Mar) S A(Par) - Bur"], [one.orders for one in alternatives])
        for rules in ("orb", "usual"):
            other = game.copy()
            resolution = other.resolve(orders, rules=rules, yes=True, compare=True, reasons=False)
            self.assertEqual((resolution.rules, resolution.stage), (rules, "moves"))
            first = resolution.results[0]
            self.assertEqual((first.power, first.order, first.destination, first.outcome),
                             ("FRA", "move", "Bur", "failed"))
            self.assertEqual(resolution.differences, [])

    def test_maps_are_pictures(self):
        game = orb.Game.read(EXAMPLES / "1902-1-spring-0-start.orb")
        self.assertIn('id="unit-', game.svg(300))
        self.assertEqual(game.png(300, mode="grey", centre_owners=True)[:8], b"\x89PNG\r\n\x1a\n")
        self.assertIn("<svg", game._repr_svg_())
        self.assertEqual(game._repr_png_()[1:4], b"PNG")
        self.assertIn("1902", repr(game))

    def test_the_stubs_name_and_docstrings_tell_what_there_is(self):
        stubs = (Path(orb.__file__).parent / "__init__.pyi").read_text()
        for name in orb.__all__:
            self.assertIn(f"class {name}", stubs)
            self.assertTrue(getattr(orb, name).__doc__, name)
            for member, value in vars(getattr(orb, name)).items():
                # Newer versions of pybind11 add members of their own.
                if not member.startswith(("__", "_pybind11_")):
                    self.assertRegex(stubs, rf"\b{member}\b", name)
                    self.assertTrue(value.__doc__, f"{name}.{member}")
        for name, method in inspect.getmembers(orb.Game, callable):
            if not name.startswith("_"):
                self.assertGreater(len(method.__doc__.splitlines()), 1, name)


if __name__ == "__main__":
    unittest.main()
