#!/usr/bin/env bash
# The descriptor walk against `du -s` with the paired timer (bench/paired.sh: A and B
# alternate, the median of the per-pair ratios is reported), on two generated trees:
#   - a developer home of about 487,000 entries (projects_bench generate: 300 projects with
#     node_modules, Rust targets, virtual environments, git repositories, large and duplicate
#     files), walked by the projects scan and by a full scan of the report tool;
#   - a flat tree of about 1,012,000 entries (walk_bench generate), measured by FileSizer and
#     walked by the projects walk, where nothing is skipped.
# Warm cache only (it cannot be dropped here). Needs /usr/bin/time. Trees go under $DATA and
# are removed afterwards.
#   DATA=/tmp/dustlark-bench BUILD_DIR=build-bench ROUNDS=5 bench/walker_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/tmp/dustlark-bench}
BUILD_DIR=${BUILD_DIR:-build-bench}
ROUNDS=${ROUNDS:-5}
trap 'rm -rf "$DATA"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target walk_bench projects_bench dustlark-cli -j 2 >/dev/null
BIN="$BUILD_DIR/bin"
PAIRED="$(dirname "$0")/paired.sh"

echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r; uptime
mkdir -p "$DATA"
df -T "$DATA" | awk 'NR==2 {print "file system: " $2 " on " $1}'

echo "== generate"
"$BIN/projects_bench" generate "$DATA/home"
"$BIN/walk_bench" generate "$DATA/flat"
for tree in home flat; do
    echo "$tree: $(find "$DATA/$tree" | wc -l) entries"  # also warms the cache
done

echo "== projects scan of the home / du -s"
"$PAIRED" "$ROUNDS" "'$BIN/dustlark-cli' scan --home '$DATA/home' --category projects --json" "du -s -B1 '$DATA/home'"
echo "== full scan of the home / du -s"
"$PAIRED" "$ROUNDS" "'$BIN/dustlark-cli' scan --home '$DATA/home' --json" "du -s -B1 '$DATA/home'"
echo "== FileSizer of the flat tree / du -s"
"$PAIRED" "$ROUNDS" "'$BIN/walk_bench' size '$DATA/flat'" "du -s -B1 '$DATA/flat'"
echo "== projects walk of the flat tree / du -s"
"$PAIRED" "$ROUNDS" "'$BIN/walk_bench' walk '$DATA/flat'" "du -s -B1 '$DATA/flat'"
echo "== one du or two at once (two halves of the home's projects), to see whether a split pays"
halves() { ls "$DATA/home/code" | awk -v d="$DATA/home/code/" -v h="$1" 'NR % 2 == h {printf "%s%s ", d, $0}'; }
"$PAIRED" "$ROUNDS" "du -s -B1 $(halves 0) >/dev/null & du -s -B1 $(halves 1) >/dev/null; wait" "du -s -B1 '$DATA/home/code'"
