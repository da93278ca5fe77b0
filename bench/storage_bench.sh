#!/usr/bin/env bash
# The storage analysis of a generated home against `du -s -B1` of the same roots, on homes of
# about 100,000 and 1,000,000 entries. The page cache cannot be dropped here, so each home is
# read once to warm it; then the two tools take turns (A B A B A B) and the ratios are of each
# pair. Needs /usr/bin/time (apt-get install time). Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/storage BUILD_DIR=build-bench bench/storage_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/storage}
BUILD_DIR=${BUILD_DIR:-build-bench}
LOG=$(mktemp -d)
trap 'rm -rf "$LOG" "$DATA"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target storage_bench -j 2 >/dev/null
BENCH="$BUILD_DIR/bin/storage_bench"

source "$(dirname "$0")/measure.sh"
MEASURE_SHOW='total|dustlark'

mkdir -p "$DATA"
echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r; uptime
df -T "$DATA" | awk 'NR==2 {print "file system: " $2 " on " $1}'

ratio() {
    awk -v a="$(cat "$LOG/$1.$3")" -v b="$(cat "$LOG/$2.$3")" -v l="$1 / $2 ($3)" 'BEGIN {printf "%-28s %.2f\n", l, a / b}'
}

for entries in 100000 1000000; do
    home="$DATA/home-$entries"
    echo "== home of about $entries entries"
    /usr/bin/time -f 'generated in %e s' "$BENCH" generate "$home" "$entries"
    mapfile -t roots < <("$BENCH" roots "$home")
    echo "entries: $(find "${roots[@]}" | wc -l) in ${#roots[@]} roots"
    du -s -B1 "${roots[@]}" >/dev/null  # warm the cache
    for round in 1 2 3; do
        measure "storage$round" "$BENCH" analyze "$home"
        measure "du$round" du -s -B1 -c "${roots[@]}"
        ratio "storage$round" "du$round" wall; ratio "storage$round" "du$round" cpu
    done
    rm -rf "$home"
done
