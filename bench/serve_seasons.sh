#!/usr/bin/env bash
# Usage: serve_seasons.sh BIN [SEASONS [ROUNDS]]
# Times how many seasons of 34 units "orbctl serve" resolves for each second of its own work, through
# pipes on both sides. The requests are made beforehand; what the neighbours of the pipe do does not
# count. BIN is the directory of orbctl and season_requests.
set -euo pipefail

bin="$1"
seasons="${2:-20000}"
rounds="${3:-5}"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
"$bin/season_requests" "$seasons" >"$work/plain"
sed 's/"yes":true/&,"reasons":true/' "$work/plain" >"$work/reasons"

export TIMEFORMAT='%U %S'
for kind in plain reasons; do
  for ((i = 1; i <= rounds; ++i)); do
    cat "$work/$kind" | bash -c 'time "$0" serve 2>&3' "$bin/orbctl" 3>/dev/null 2>"$work/time" | cat >"$work/answers"
    [[ "$(grep -c '"done":true' "$work/answers")" == "$seasons" ]]
    awk -v kind="$kind" -v n="$seasons" \
      '{ printf "%s: %.0f seasons a second (user), %.0f (user and system)\n", kind, n / $1, n / ($1 + $2) }' "$work/time"
  done
done
