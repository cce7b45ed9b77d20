#!/usr/bin/env bash
# Usage: resolve_many.sh BIN [GAMES [ROUNDS [DIRECTORY]]]
# Times "orbctl resolve" of many games in one call against bare_rewrite, which only reads files and
# writes others of the same size as safely. BIN is the directory of both programs; the games lie in
# DIRECTORY (/tmp), whose disk is what is measured most. Prints each round and the median ratio.
set -euo pipefail

bin="$1"
games="${2:-2000}"
rounds="${3:-9}"
source="$(dirname "$(readlink -f "$0")")/data/midgame.orb"
work="$(mktemp -d "${4:-/tmp}/resolve_many.XXXXXX")"
trap 'rm -rf "$work"' EXIT
mkdir "$work/in" "$work/out"
for ((i = 1; i <= games; ++i)); do cp "$source" "$work/in/g$i.orb"; done

resolve() { "$bin/orbctl" resolve --yes -o "$work/out" "$work"/in/*.orb >"$work/report" 2>"$work/messages"; }
rewrite() { "$bin/bare_rewrite" "$size" "$work/out" "$work"/in/*.orb; }
seconds() {
  local start=$EPOCHREALTIME
  "$1"
  awk -v a="$start" -v b="$EPOCHREALTIME" 'BEGIN { printf "%.3f", b - a }'
}

resolve
size="$(stat -c %s "$work/out/g1.orb")"
sync
for ((i = 1; i <= rounds; ++i)); do
  # The order changes, so that neither program always finds the quieter disk.
  if ((i % 2)); then a=$(seconds resolve); b=$(seconds rewrite); else b=$(seconds rewrite); a=$(seconds resolve); fi
  ratio=$(awk -v a="$a" -v b="$b" 'BEGIN { printf "%.2f", a / b }')
  echo "orbctl $a s, bare_rewrite $b s, ratio $ratio"
  echo "$ratio" >>"$work/ratios"
done
echo "median ratio $(sort -n "$work/ratios" | sed -n "$(((rounds + 1) / 2))p") over $games games"
