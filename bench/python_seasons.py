#!/usr/bin/env python3
"""Usage: PYTHONPATH=build/release/python bench/python_seasons.py [SEASONS]
How many seasons of 34 units Python resolves for each second of processor time: half of the orders are
those of the game of the benchmarks, half any that are possible. They are drawn beforehand."""

import random
import sys
import time
from pathlib import Path

import orb

seasons = int(sys.argv[1]) if len(sys.argv) > 1 else 20000
game = orb.Game.read(Path(__file__).parent / "data" / "midgame.orb")
own = game.orders
possible = list(game.possible_orders().values())
random.seed(1)
lists = [
    [own[k] if random.random() < 0.5 else random.choice(choices) for k, choices in enumerate(possible)]
    for _ in range(seasons)
]
for reasons in (False, True):
    begun = time.process_time()
    failed = 0
    for orders in lists:
        results = game.copy().resolve(orders, yes=True, reasons=reasons).results
        failed += results[0].outcome != "succeeded"
    spent = time.process_time() - begun
    kind = "with reasons" if reasons else "with results"
    print(f"{kind}: {seasons / spent:.0f} seasons a second ({failed} first orders failed)")
