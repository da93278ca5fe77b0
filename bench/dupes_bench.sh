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

# Runs a command under /usr/bin/time -v; prints "label wall user sys cpu%".
measure() {
    local label=$1; shift
    /usr/bin/time -v "$@" >"$LOG/out" 2>"$LOG/time"
    local wall user sys cpu
    wall=$(awk -F': ' '/Elapsed \(wall clock\)/ {n=split($2,t,":"); s=0; for(i=1;i<=n;i++) s=s*60+t[i]; print s}' "$LOG/time")
    user=$(awk -F': ' '/User time/ {print $2}' "$LOG/time")
    sys=$(awk -F': ' '/System time/ {print $2}' "$LOG/time")
    cpu=$(awk -F': ' '/Percent of CPU/ {print $2}' "$LOG/time")
    printf '%-16s wall %6.2f s  user %6.2f s  sys %5.2f s  cpu %s\n' "$label" "$wall" "$user" "$sys" "$cpu"
    grep -E '^dustlark |not unique|duplicate files' "$LOG/out" || true
}

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
