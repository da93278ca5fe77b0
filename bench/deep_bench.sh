#!/usr/bin/env bash
# Deep trees against `du -s` with the paired timer (bench/paired.sh: A and B alternate, the
# median of the per-pair ratios is reported):
#   - a chain of $LEVELS nested folders (default 10,000), each holding a 100-byte file, in the
#     home's Documents, so the projects walk enters it;
#   - 30 projects whose node_modules nest 100 packages deep, each with a sibling package of 30
#     files.
# For each home: the full scan (`dustlark-cli scan`, all scanners), the storage analysis
# (`storage_bench analyze`) against `du -s` of the same roots. The system temp folders are
# empty tmpfs mounts in a private mount namespace (needs root and unshare), so the scan's
# temporary-files scanner reads only the home, as du does. Warm cache; trees built by
# bench/deep_tree.py under $DATA and removed afterwards unless KEEP=1.
#   DATA=/work/bench-data/deep BUILD_DIR=build-bench ROUNDS=7 bench/deep_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/deep}
BUILD_DIR=${BUILD_DIR:-build-bench}
ROUNDS=${ROUNDS:-7}
LEVELS=${LEVELS:-10000}
KEEP=${KEEP:-0}
[ "$KEEP" = 1 ] || trap 'rm -rf "$DATA"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target storage_bench dustlark-cli -j 2 >/dev/null
BIN="$(pwd)/$BUILD_DIR/bin"
PAIRED="$(pwd)/bench/paired.sh"

source bench/measure.sh
describe_machine "$DATA"

echo "== generate"
if [ ! -d "$DATA/chain" ]; then
    mkdir -p "$DATA/chain/Documents"
    python3 bench/deep_tree.py chain "$DATA/chain/Documents/chain" "$LEVELS"
fi
if [ ! -d "$DATA/modules" ]; then
    for project in $(seq 1 30); do
        mkdir -p "$DATA/modules/code/app-$project"
        python3 bench/deep_tree.py modules "$DATA/modules/code/app-$project" 100
    done
fi
for home in chain modules; do
    echo "$home: $(find "$DATA/$home" | wc -l) entries"  # also warms the cache
done

# Everything below runs with empty system temp folders.
unshare -m bash -s "$DATA" "$BIN" "$PAIRED" "$ROUNDS" <<'INNER'
set -euo pipefail
DATA=$1 BIN=$2 PAIRED=$3 ROUNDS=$4
source bench/measure.sh
mount -t tmpfs none /tmp
mount -t tmpfs none /var/tmp
unset TMPDIR
for home in chain modules; do
    echo "== full scan of $home / du -s"
    "$PAIRED" "$ROUNDS" "'$BIN/dustlark-cli' scan --home '$DATA/$home' --json" "du -s -B1 '$DATA/$home'"
    echo "== storage analysis of $home / du -s of the same roots"
    pair_storage "$ROUNDS" "$BIN" "$DATA/$home"
done
INNER
