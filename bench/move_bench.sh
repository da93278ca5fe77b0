#!/usr/bin/env bash
# Moving a 2 GB folder of mixed files to another file system (a tmpfs under /dev/shm) with
# Dustlark's mover (copy, both fingerprints, placing, the real freedesktop trash) against
# `cp -a` of the same folder in the same run, in turns A B A B so a busy machine hits both alike.
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
    measure "move$round" "$BENCH" move "$WORK/home/data" "$DISK"
    diff -r "$XDG_DATA_HOME/Trash/files/data" "$DISK/data" >/dev/null && echo "                 copy identical to the original"
    mv "$XDG_DATA_HOME/Trash/files/data" "$WORK/home/data"
    rm -f "$XDG_DATA_HOME/Trash/info/data.trashinfo"
    rm -rf "$DISK/data"
done

echo "== move / cp -a per round (wall, cpu)"
for round in $(seq "$ROUNDS"); do
    awk -v r="$round" -v mw="$(cat "$LOG/move$round.wall")" -v cw="$(cat "$LOG/cp$round.wall")" \
        -v mc="$(cat "$LOG/move$round.cpu")" -v cc="$(cat "$LOG/cp$round.cpu")" \
        'BEGIN {printf "round %d   wall %.2f   cpu %.2f\n", r, mw / cw, mc / cc}'
done
