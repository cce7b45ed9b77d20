#!/usr/bin/env bash
# Usage: with_parallel.sh GAME [CHUNKS [SEASONS [JOBS]]]
# The same seasons through "orbctl serve", a pipe for each chunk, JOBS at a time; GNU parallel spreads
# them over other machines with --sshlogin. orbctl must be on the PATH, orb on PYTHONPATH.
set -euo pipefail

here="$(dirname "$(readlink -f "$0")")"
game="$1"
chunks="${2:-1000}"
seq 0 $((chunks - 1)) |
  parallel --will-cite --halt now,fail=1 -j "${4:-2}" \
    "python3 '$here/season_requests.py' '$game' {} ${3:-1000} | orbctl serve | python3 '$here/tally.py'" |
  python3 "$here/tally.py"
