#!/usr/bin/env bash
# The descriptor walk against `du -s` with the paired timer (bench/paired.sh: A and B
# alternate, the median of the per-pair ratios is reported), on three trees:
#   - a developer home of about 487,000 entries (projects_bench generate: 300 projects with
#     node_modules, Rust targets, virtual environments, git repositories, large and duplicate
#     files), walked by the projects scan, a full scan and the storage analysis;
#   - a flat tree of about 1,012,000 entries (walk_bench generate), measured by FileSizer and
#     walked by the projects walk, where nothing is skipped;
#   - a real npm-heavy home (bench/npm_home.sh: one `npm install` of large packages copied
#     into 20 projects; needs npm and the npm registry), scanned and analysed like the first.
# Warm cache only (it cannot be dropped here). Needs /usr/bin/time. Trees go under $DATA and
# are removed afterwards; NPM=0 leaves the npm home out; KEEP=1 keeps them, and a later run with
# KEEP=1 walks the kept trees again instead of generating new ones.
#   DATA=/work/bench-data/walker BUILD_DIR=build-bench ROUNDS=5 bench/walker_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/walker}
BUILD_DIR=${BUILD_DIR:-build-bench}
ROUNDS=${ROUNDS:-5}
NPM=${NPM:-1}
KEEP=${KEEP:-0}
[ "$KEEP" = 1 ] || trap 'rm -rf "$DATA"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target walk_bench projects_bench storage_bench dustlark-cli -j 2 >/dev/null
BIN="$BUILD_DIR/bin"
PAIRED="$(dirname "$0")/paired.sh"

source "$(dirname "$0")/measure.sh"
describe_machine "$DATA"

echo "== generate"
[ -d "$DATA/home" ] || "$BIN/projects_bench" generate "$DATA/home" >/dev/null
[ -d "$DATA/flat" ] || "$BIN/walk_bench" generate "$DATA/flat" >/dev/null
homes=(home)
if [ "$NPM" = 1 ]; then
    [ -d "$DATA/npm" ] || "$(dirname "$0")/npm_home.sh" "$DATA/npm"
    homes+=(npm)
fi
for tree in "${homes[@]}" flat; do
    echo "$tree: $(find "$DATA/$tree" | wc -l) entries"  # also warms the cache
done

for home in "${homes[@]}"; do
    echo "== projects scan of $home / du -s"
    "$PAIRED" "$ROUNDS" "'$BIN/dustlark-cli' scan --home '$DATA/$home' --category projects --json" "du -s -B1 '$DATA/$home'"
    echo "== full scan of $home / du -s"
    "$PAIRED" "$ROUNDS" "'$BIN/dustlark-cli' scan --home '$DATA/$home' --json" "du -s -B1 '$DATA/$home'"
    echo "== storage analysis of $home / du -s of the same roots"
    pair_storage "$ROUNDS" "$BIN" "$DATA/$home"
done
echo "== FileSizer of the flat tree / du -s"
"$PAIRED" "$ROUNDS" "'$BIN/walk_bench' size '$DATA/flat'" "du -s -B1 '$DATA/flat'"
echo "== projects walk of the flat tree / du -s"
"$PAIRED" "$ROUNDS" "'$BIN/walk_bench' walk '$DATA/flat'" "du -s -B1 '$DATA/flat'"
