#!/usr/bin/env bash
# The scan-folder walk and FileSizer against `du -s` and `find | wc -l` on one generated tree
# of about 1,012,000 entries. The page cache cannot be dropped here, so the tree is read once
# to warm it and every tool runs twice; the second round is the one to report.
# Needs /usr/bin/time (apt-get install time). Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/walk BUILD_DIR=build-bench bench/walk_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/walk}
BUILD_DIR=${BUILD_DIR:-build-bench}
LOG=$(mktemp -d)
trap 'rm -rf "$LOG" "$DATA"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target walk_bench -j 2 >/dev/null
BENCH="$BUILD_DIR/bin/walk_bench"

source "$(dirname "$0")/measure.sh"

mkdir -p "$(dirname "$DATA")"
echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r
df -T "$(dirname "$DATA")" | awk 'NR==2 {print "file system: " $2 " on " $1}'

echo "== generate"
rm -rf "$DATA"
/usr/bin/time -f 'generated in %e s' "$BENCH" generate "$DATA"
find "$DATA" >/dev/null  # warm the cache

for round in 1 2; do
    echo "== round $round"
    measure walk "$BENCH" walk "$DATA"
    measure size "$BENCH" size "$DATA"
    measure du du -s -B1 "$DATA"
    measure find sh -c "find '$DATA' | wc -l"
done

# Wall time swings with whatever else the machine runs; processor time (user + system) is the
# steadier comparison on a shared machine, so both are given.
ratio() {
    awk -v a="$(cat "$LOG/$1.$3")" -v b="$(cat "$LOG/$2.$3")" -v l="$1 / $2 ($3)" 'BEGIN {printf "%-20s %.2f\n", l, a / b}'
}
echo "== ratios of round 2 (below 1.0: faster)"
for kind in wall cpu; do
    ratio walk du $kind; ratio size du $kind; ratio walk find $kind; ratio size find $kind
done
