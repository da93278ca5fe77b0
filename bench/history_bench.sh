#!/usr/bin/env bash
# What the scan history costs: the time recording one storage analysis adds to that analysis, on
# generated homes of about 100,000 and 1,000,000 entries (storage_bench's generator), and the
# size of the history file after 200 full scans and 200 storage analyses with full folder lists.
# Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/history BUILD_DIR=build-bench bench/history_bench.sh [ENTRIES...]
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/history}
BUILD_DIR=${BUILD_DIR:-build-bench}
trap 'rm -rf "$DATA"' EXIT
sizes=("$@")
[ ${#sizes[@]} -gt 0 ] || sizes=(100000 1000000)

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target storage_bench history_bench -j 2 >/dev/null

mkdir -p "$DATA"
echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r; uptime
df -T "$DATA" | awk 'NR==2 {print "file system: " $2 " on " $1}'

echo "== file size after 200 scans and 200 analyses"
"$BUILD_DIR/bin/history_bench" fill "$DATA/fill.sqlite" 200
rm -f "$DATA"/fill.sqlite*

for entries in "${sizes[@]}"; do
    home="$DATA/home-$entries"
    echo "== home of about $entries entries"
    "$BUILD_DIR/bin/storage_bench" generate "$home" "$entries"
    du -s -B1 "$home" >/dev/null  # warm the cache
    for round in 1 2 3; do
        "$BUILD_DIR/bin/history_bench" record "$home" "$DATA/history.sqlite"
    done
    rm -rf "$home" "$DATA"/history.sqlite*
done
