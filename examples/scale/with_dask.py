#!/usr/bin/env python3
"""Usage: with_dask.py [--scheduler ADDRESS | --workers N] [--seasons N] GAME

Resolves random seasons of a game on a cluster of Dask and counts how orders came out. Without
--scheduler a cluster of N processes is started here. Every worker needs the package orb; this file's
neighbour goes to the workers by itself.
"""

import argparse
import json
import time
from collections import Counter
from pathlib import Path

from distributed import Client, LocalCluster, as_completed

import orb
import seasons


def main():
    options = argparse.ArgumentParser(description=__doc__.split("\n\n", 1)[1])
    options.add_argument("--scheduler", help="the address of a cluster that runs: tcp://HOST:8786")
    options.add_argument("--workers", type=int, default=2, help="processes on this machine (2)")
    options.add_argument("--seasons", type=int, default=1_000_000, help="how many (1000000)")
    options.add_argument("--chunk", type=int, default=seasons.CHUNK,
                         help=f"seasons in each piece of work ({seasons.CHUNK})")
    options.add_argument("game", help="a game file in its moves")
    given = options.parse_args()

    cluster = given.scheduler or LocalCluster(
        n_workers=given.workers, threads_per_worker=1, dashboard_address=None)
    with Client(cluster) as client:
        client.upload_file(str(Path(seasons.__file__)))
        begun = time.monotonic()
        # The game travels once to each worker, a chunk is then no more than its number.
        game = client.scatter(orb.Game.read(given.game), broadcast=True)
        chunks = range(given.seasons // given.chunk)
        futures = client.map(lambda chunk, game: seasons.play(game, chunk, given.chunk), chunks, game=game)
        total = Counter()
        for _, tally in as_completed(futures, with_results=True):
            total.update(tally)
        spent = time.monotonic() - begun
    print(json.dumps({**dict(sorted(total.items())), "seconds": round(spent, 2)}))


if __name__ == "__main__":
    main()
