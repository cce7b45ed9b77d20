#!/usr/bin/env bash
# Usage: bench/start_up.sh BUILD_BIN_DIRECTORY [ROUNDS]
# Times the start of the window against a bare one, in turn, on a screen of its own, and compares
# the memory that both hold once they are painted.
set -euo pipefail
programs=$(realpath "${1:?directory of the programs}")
rounds=${2:-15}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for _ in $(seq "$rounds"); do
  for program in bare_window start_window; do
    begin=$(date +%s%N)
    memory=$("$programs/$program" 2> "$work/errors")
    end=$(date +%s%N)
    echo "$(((end - begin) / 1000)) ${memory%% *}" >> "$work/$program"
  done
done

median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
for program in bare_window start_window; do
  awk '{ print $1 }' "$work/$program" | median > "$work/$program.time"
  awk '{ print $2 }' "$work/$program" | median > "$work/$program.memory"
done
paste "$work"/{bare_window,start_window}.{time,memory} | awk '{
  printf "start: bare %.1f ms, window %.1f ms, %.2f times\n", $1 / 1000, $3 / 1000, $3 / $1
  printf "memory: bare %.1f MB, window %.1f MB, %.1f MB more\n", $2 / 1024, $4 / 1024, ($4 - $2) / 1024 }'
