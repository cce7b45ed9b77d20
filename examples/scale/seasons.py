"""Random seasons of one game, in chunks: what is to be spread over processes or machines.

A chunk is known by its number alone, which seeds its orders, so that it gives the same result
wherever it runs, and one that was lost can be run again.
"""

import random
from collections import Counter

import orb

CHUNK = 1000


def draw(choices, chunk, seasons=CHUNK):
    """The orders of each season of a chunk: for each unit any that it could be given."""
    dice = random.Random(chunk)
    for _ in range(seasons):
        yield [dice.choice(orders) for orders in choices]


def play(game, chunk, seasons=CHUNK):
    """Resolves the moves of a chunk's seasons; how often orders came out how."""
    choices = list(game.possible_orders().values())
    tally = Counter()
    for orders in draw(choices, chunk, seasons):
        resolution = game.copy().resolve(orders, yes=True, reasons=False)
        tally.update(result.outcome for result in resolution.results)
        tally["seasons"] += 1
    return tally
