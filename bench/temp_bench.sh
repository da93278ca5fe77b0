#!/usr/bin/env bash
# The temporary files' age check (NewestChange, one walk per entry) against `du -s --time`,
# which finds the same newest modification time, on a generated temp-like tree of 150,150
# entries; plus a whole TemporaryScanner pass over it. Warm cache; the tools run in turn
# (A B A B ...), three rounds, so a loaded machine slows both alike.
# Needs /usr/bin/time (apt-get install time). Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/temp BUILD_DIR=build-bench bench/temp_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/temp}
BUILD_DIR=${BUILD_DIR:-build-bench}
LOG=$(mktemp -d)
trap 'rm -rf "$LOG" "$DATA"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target temp_bench -j 2 >/dev/null
BENCH="$BUILD_DIR/bin/temp_bench"

source "$(dirname "$0")/measure.sh"

mkdir -p "$(dirname "$DATA")"
echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r; uptime
rm -rf "$DATA"
/usr/bin/time -f 'generated in %e s' "$BENCH" generate "$DATA"
find "$DATA" >/dev/null  # warm the cache

ratio() {
    awk -v a="$(cat "$LOG/$1.$3")" -v b="$(cat "$LOG/$2.$3")" -v l="$1 / $2 ($3)" 'BEGIN {printf "%-22s %.2f\n", l, a / b}'
}
for round in 1 2 3; do
    echo "== round $round"
    measure newest "$BENCH" newest "$DATA"
    measure du sh -c "du -s --time --time-style=+%s '$DATA'"
    measure scan "$BENCH" scan "$DATA"
    for kind in wall cpu; do ratio newest du $kind; ratio scan du $kind; done
done
