#!/usr/bin/env bash
# Moving a 2 GB folder of mixed files to another file system (a tmpfs under /dev/shm, or DISK)
# with Dustlark's mover (copy, fingerprints, every copied file read back and its digest compared
# with the original's, placing, the real freedesktop trash) against `cp -a` of the same folder,
# and against `cp -a` followed by a byte comparison of the whole tree (`diff -r`, which compares
# equal-sized files byte for byte as cmp does, in one process), in turns so a busy machine hits
# all alike. Ratios are per round; the medians are printed last.
# The source lives on the home disk; the page cache cannot be dropped here, so one warm-up copy
# runs first and every round reads a cached source. Copies are removed between rounds.
#   BUILD_DIR=build-bench ROUNDS=3 bench/move_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR=${BUILD_DIR:-build-bench}
ROUNDS=${ROUNDS:-3}
WORK=${WORK:-/tmp/dustlark-move-bench}
DISK=${DISK:-/dev/shm/dustlark-move-bench}
LOG=$(mktemp -d)
trap 'rm -rf "$LOG" "$WORK" "$DISK"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target move_bench -j 2 >/dev/null
BENCH="$BUILD_DIR/bin/move_bench"
source "$(dirname "$0")/measure.sh"

export XDG_DATA_HOME="$WORK/xdg"   # the freedesktop trash the originals go to
mkdir -p "$WORK/home" "$XDG_DATA_HOME" "$DISK"
echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uptime
df -T "$WORK" "$DISK" | awk 'NR>1 {print "file system: " $2 " on " $7}'

echo "== generate"
/usr/bin/time -f 'generated in %e s' "$BENCH" generate "$WORK/home/data"
du -s -B1 "$WORK/home/data" | awk '{printf "%.2f GB allocated\n", $1 / 1e9}'
find "$WORK/home/data" | wc -l | awk '{print $1 " entries"}'
cp -a "$WORK/home/data" "$DISK/warm" && rm -rf "$DISK/warm"

for round in $(seq "$ROUNDS"); do
    echo "== round $round"
    measure "cp$round" cp -a -T -- "$WORK/home/data" "$DISK/data"
    rm -rf "$DISK/data"
    measure "cpcmp$round" sh -c 'cp -a -T -- "$1" "$2" && diff -r --no-dereference -q "$1" "$2"' sh "$WORK/home/data" "$DISK/data"
    rm -rf "$DISK/data"
    measure "move$round" "$BENCH" move "$WORK/home/data" "$DISK"
    diff -r "$XDG_DATA_HOME/Trash/files/data" "$DISK/data" >/dev/null && echo "                 copy identical to the original"
    mv "$XDG_DATA_HOME/Trash/files/data" "$WORK/home/data"
    rm -f "$XDG_DATA_HOME/Trash/info/data.trashinfo"
    rm -rf "$DISK/data"
done

median() { sort -g | awk '{v[NR] = $1} END {print (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2)}'; }
# ratio A B KIND: per-round A/B of the wall or cpu times, then their median.
ratio() {
    for round in $(seq "$ROUNDS"); do
        awk -v a="$(cat "$LOG/$1$round.$3")" -v b="$(cat "$LOG/$2$round.$3")" 'BEGIN {printf "%.3f\n", a / b}'
    done | tee "$LOG/ratios" | tr '\n' ' '
    printf '  median %.2f\n' "$(median <"$LOG/ratios")"
}
for kind in wall cpu; do
    echo "== move / cp -a, $kind:           $(ratio move cp "$kind")"
    echo "== move / cp -a + diff -r, $kind: $(ratio move cpcmp "$kind")"
done
