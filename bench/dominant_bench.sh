#!/usr/bin/env bash
# A home where one folder (~/Projects) holds 99% of the entries, grown to 1, 3 and 5 million
# entries (SIZES, in millions): at each size the storage analysis and `du -s -B1 -c` of the same
# roots take turns (bench/paired.sh, ROUNDS pairs, after a `du` to warm the cache), and the peak
# memory of `dustlark-cli storage` and `dustlark-cli scan` (all scanners) of that home is read
# from /usr/bin/time. Needs /usr/bin/time (apt-get install time); about 1.2 GB and a million
# inodes per million entries. Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/dominant BUILD_DIR=build-bench ROUNDS=5 SIZES="1 3 5" bench/dominant_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/dominant}
BUILD_DIR=${BUILD_DIR:-build-bench}
ROUNDS=${ROUNDS:-5}
SIZES=${SIZES:-1 3 5}
home="$DATA/home"
trap 'rm -rf "$DATA" "$DATA.config"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target storage_bench dustlark-cli -j 2 >/dev/null
BENCH="$BUILD_DIR/bin/storage_bench"
CLI="$BUILD_DIR/bin/dustlark-cli"
# The report tool keeps its settings and history out of the person's own.
export XDG_CONFIG_HOME="$DATA.config" XDG_DATA_HOME="$DATA.config"

echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r; uptime
mkdir -p "$DATA"
df -T "$DATA" | awk 'NR==2 {print "file system: " $2 " on " $1}'

peak() {
    /usr/bin/time -f '%M' -o "$DATA/peak" "$@" >/dev/null 2>&1
    echo "$(cat "$DATA/peak") KiB"
}

for millions in $SIZES; do
    /usr/bin/time -f 'grown in %e s' "$BENCH" dominant "$home" "${millions}000000"
    mapfile -t roots < <("$BENCH" roots "$home")
    echo "== home of $(find "$home" | wc -l) entries, $(find "$home/Projects" | wc -l) of them in Projects"
    du -s -B1 -c "${roots[@]}" >/dev/null  # warm the cache
    bench/paired.sh "$ROUNDS" "$BENCH analyze $home" "du -s -B1 -c ${roots[*]}"
    echo "peak memory, dustlark-cli storage: $(peak "$CLI" storage --home "$home")"
    echo "peak memory, dustlark-cli scan:    $(peak "$CLI" scan --home "$home")"
    echo "peak memory, du -s:                $(peak du -s -B1 "$home")"
done
