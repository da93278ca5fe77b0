#!/usr/bin/env bash
# Duplicate finder against rdfind and jdupes on one generated data set (about 2,000 files,
# 3.3 GB), warm cache, every tool run twice; plus OpenSSL's SHA-256 speed as the floor.
# Needs: apt-get install rdfind jdupes time. Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/dupes BUILD_DIR=build-bench bench/dupes_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/dupes}
BUILD_DIR=${BUILD_DIR:-build-bench}
LOG=$(mktemp -d)
trap 'rm -rf "$LOG" "$DATA"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target dupes_bench -j 2 >/dev/null
BENCH="$BUILD_DIR/bin/dupes_bench"

rm -rf "$DATA"
"$BENCH" generate "$DATA"
find "$DATA" -type f -exec cat {} + >/dev/null  # warm the page cache

MEASURE_SHOW='^dustlark |not unique|duplicate files'
source "$(dirname "$0")/measure.sh"

echo "== machine"
grep -m1 'model name' /proc/cpuinfo; nproc; uname -r; rdfind -v; jdupes -v | head -1

echo "== SHA-256 floor (1 MiB blocks)"
openssl speed -evp sha256 -bytes 1048576 -seconds 3 2>/dev/null | tail -1
openssl speed -evp sha256 -bytes 1048576 -seconds 3 -multi 2 2>/dev/null | tail -1

for round in $(seq 1 "${ROUNDS:-2}"); do
    echo "== round $round (load average $(cut -d' ' -f1-3 /proc/loadavg))"
    measure dustlark "$BENCH" scan "$DATA"
    measure rdfind rdfind -dryrun true -makeresultsfile false "$DATA"
    measure rdfind-sha256 rdfind -dryrun true -makeresultsfile false -checksum sha256 "$DATA"
    measure jdupes jdupes -r -q -m "$DATA"
done
