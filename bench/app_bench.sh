#!/usr/bin/env bash
# The app in a real window (Xvfb with openbox): how long after launch the window first paints
# (LAUNCHES launches over an empty home), and the longest stall of the GUI event loop while a
# full scan of a generated home of about 1,000,000 entries runs (SCANS scans of each home, each
# the home's first: fresh settings and history). Two homes: `storage_bench generate` (many
# small folders; the Storage screens get a thousand rows) and `storage_bench dominant` (a
# thousand projects with a package.json, scanned with Project Builds on screen, which gets a
# thousand rows). The app measures itself when asked (DUSTLARK_LAUNCHED_AT_MS,
# DUSTLARK_STALL_METER: the longest stall, and the most processor time the GUI thread itself
# used in one stretch, which the machine's load does not lengthen); a scan has ended when the
# app has used no processor time for 2 s. Needs Xvfb, openbox, xdotool. Results go into
# docs/benchmarks.md by hand.
#   DATA=/work/bench-data/app BUILD_DIR=build-bench bench/app_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh openbox xdotool xvfb
DATA=${DATA:-/work/bench-data/app}
BUILD_DIR=${BUILD_DIR:-build-bench}
LAUNCHES=${LAUNCHES:-9}
SCANS=${SCANS:-3}
LOG=$(mktemp -d)
pids=()
cleanup() { kill "${pids[@]}" 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$LOG"; }
trap cleanup EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target dustlark storage_bench -j 2 >/dev/null
APP="$(pwd)/$BUILD_DIR/bin/dustlark"

echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r; uptime

export DISPLAY=:$((90 + RANDOM % 100))
Xvfb "$DISPLAY" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 & pids+=($!)
sleep 1
openbox >/dev/null 2>&1 & pids+=($!)
sleep 1

# start_app HOME [VARIABLE=VALUE...]: starts the app with a home and its own settings, data and
# runtime folders (so each run is a first run and never meets another copy); sets $app.
start_app() {
    local home=$1; shift
    local run; run=$(mktemp -d "$LOG/run-XXXXXX")
    mkdir -p "$run/config" "$run/data" "$run/runtime"; chmod 700 "$run/runtime"
    env HOME="$home" XDG_CONFIG_HOME="$run/config" XDG_DATA_HOME="$run/data" XDG_RUNTIME_DIR="$run/runtime" \
        QT_QPA_PLATFORM=xcb "$@" "$APP" 2>"$LOG/app.err" >/dev/null &
    app=$!
}

processor_ticks() { awk '{print $14 + $15}' "/proc/$1/stat"; }

# wait_idle PID: returns once the process has used almost no processor time for 2 s (the
# stall meter's timer itself costs a tick now and then).
wait_idle() {
    local last now quiet=0
    last=$(processor_ticks "$1")
    while [ "$quiet" -lt 4 ]; do
        sleep 0.5
        now=$(processor_ticks "$1")
        if [ $((now - last)) -le 2 ]; then quiet=$((quiet + 1)); else quiet=0; fi
        last=$now
    done
}

median_range() { sort -n | awk '{v[NR] = $1} END {printf "median %s ms, min %s ms, max %s ms (%d runs)\n", (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2), v[1], v[NR], NR}'; }

echo "== first paint after launch"
mkdir -p "$LOG/empty-home"
for run in $(seq 1 "$LAUNCHES"); do
    start_app "$LOG/empty-home" DUSTLARK_LAUNCHED_AT_MS="$(date +%s%3N)"
    for _ in $(seq 1 100); do grep -q 'first paint' "$LOG/app.err" && break; sleep 0.1; done
    kill "$app"; wait "$app" 2>/dev/null || true
    sed -n 's/^first paint after \([0-9]*\) ms$/\1/p' "$LOG/app.err" | tee -a "$LOG/paints" | sed "s/^/run $run: /; s/$/ ms/"
done
median_range <"$LOG/paints"

for kind in generate dominant; do
    echo "== longest event-loop stall during a full scan (storage_bench $kind)"
    rm -rf "$DATA"; mkdir -p "$(dirname "$DATA")"
    "$BUILD_DIR/bin/storage_bench" "$kind" "$DATA" 1000000
    echo "entries: $(find "$DATA" | wc -l)"
    find "$DATA" >/dev/null  # warm the cache
    rm -f "$LOG/stalls" "$LOG/turns"
    for run in $(seq 1 "$SCANS"); do
        start_app "$DATA" DUSTLARK_STALL_METER=1
        window=$(xdotool search --sync --onlyvisible --name '^Dustlark$' | head -1)
        wait_idle "$app"
        # The sidebar has the keyboard at launch; typing a title chooses that row.
        [ "$kind" = dominant ] && xdotool windowactivate --sync "$window" type --delay 50 "Project B"
        xdotool windowactivate --sync "$window" key ctrl+r
        started=$(date +%s%3N)
        wait_idle "$app"
        scanned=$(( $(date +%s%3N) - started - 2000 ))
        xdotool windowactivate --sync "$window" key ctrl+q
        wait "$app" 2>/dev/null || true
        stall=$(sed -n 's/^longest stall \([0-9]*\) ms.*/\1/p' "$LOG/app.err")
        turn=$(sed -n 's/^busiest turn \([0-9]*\) ms.*/\1/p' "$LOG/app.err")
        echo "$stall" >>"$LOG/stalls"
        echo "$turn" >>"$LOG/turns"
        echo "run $run: longest stall $stall ms, busiest turn $turn ms of processor time; the scan took about $scanned ms"
    done
    echo "longest stall: $(median_range <"$LOG/stalls")"
    echo "busiest turn: $(median_range <"$LOG/turns")"
    rm -rf "$DATA"
done
