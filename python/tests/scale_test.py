"""The same random seasons alone, spread by Dask and through "orbctl serve" by GNU parallel: they come
out the same."""

import importlib.util
import json
import os
import shutil
import subprocess
import sys
import unittest
from collections import Counter
from pathlib import Path

import orb

EXAMPLES = Path(os.environ["ORB_EXAMPLES"])
SCALE = EXAMPLES / "scale"
GAME = EXAMPLES / "1903-1-spring-0-start.orb"
CHUNKS, SEASONS = 4, 50


class ScaleTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        sys.path.insert(0, str(SCALE))
        import seasons

        game = orb.Game.read(GAME)
        alone = sum((seasons.play(game, chunk, SEASONS) for chunk in range(CHUNKS)), Counter())
        assert alone["seasons"] == CHUNKS * SEASONS
        cls.alone = dict(alone)

    def run_script(self, *command):
        done = subprocess.run([str(part) for part in command], capture_output=True, check=True, timeout=240)
        return json.loads(done.stdout)

    @unittest.skipUnless(importlib.util.find_spec("distributed"), "python3-distributed is not installed")
    def test_two_workers_of_dask(self):
        tally = self.run_script(sys.executable, SCALE / "with_dask.py", "--workers", 2, "--seasons",
                                CHUNKS * SEASONS, "--chunk", SEASONS, GAME)
        self.assertGreater(tally.pop("seconds"), 0)
        self.assertEqual(tally, self.alone)

    @unittest.skipUnless(shutil.which("parallel") and shutil.which("orbctl"), "parallel is not installed")
    def test_pipes_of_gnu_parallel(self):
        tally = self.run_script(SCALE / "with_parallel.sh", GAME, CHUNKS, SEASONS, 2)
        self.assertEqual(tally, self.alone)


if __name__ == "__main__":
    unittest.main()
