#!/usr/bin/env bash
# A walk through every flow in a real window, as a person meets it: the app under Xvfb with a
# window manager (openbox), a temporary home with something for every flow, and a second disk
# (a loop-mounted ext4 image in a private mount namespace). xdotool drives it and every step
# is photographed into OUT (default /tmp/dustlark-walk) for looking at; the clearest go into
# docs/screenshots/ by hand. Not part of the tests: the clicks are positions on a 1280x800
# screen. Needs root (the loop mount), Xvfb, openbox, xdotool, imagemagick.
#   scripts/walk.sh [OUT]
set -euo pipefail
cd "$(dirname "$0")/.."
if [ -z "${DUSTLARK_WALK_INSIDE:-}" ]; then
    scripts/setup.sh openbox xdotool imagemagick x11-utils xvfb
    exec unshare --mount --propagation private env DUSTLARK_WALK_INSIDE=1 "$0" "$@"
fi
APP="$(pwd)/${BUILD_DIR:-build}/bin/dustlark"
OUT=${1:-/tmp/dustlark-walk}
mkdir -p "$OUT"
work=$(mktemp -d /tmp/dustlark-walk-XXXXXX)
pids=()
cleanup() { kill "${pids[@]}" 2>/dev/null || true; wait 2>/dev/null || true; umount "$work/disk" 2>/dev/null || true; rm -rf "$work"; }
trap cleanup EXIT
home=$work/home

# Something for every flow: project builds, caches, old downloads and Linux installers, a
# large (Risky) file, a folder of thousands of small files and a Trash of 1,540 items, slow
# enough to empty that its progress, Stop and the quit question can be seen.
make_home() {
    local project i
    for project in webapp shop-frontend; do
        mkdir -p "$home/Projects/$project/src" "$home/Projects/$project/node_modules/react"
        echo "{\"name\":\"$project\"}" >"$home/Projects/$project/package.json"
        for i in $(seq 1 100); do head -c 40000 /dev/urandom >"$home/Projects/$project/node_modules/react/c$i.js"; done
        git -C "$home/Projects/$project" init -q
    done
    mkdir -p "$home/Projects/rusty/target/debug" "$home/.cache/pip/http" "$home/.npm/_cacache" "$home/Downloads/old-photos" \
        "$home/Videos" "$home/Documents/mail" "$home/Desktop" "$home/.local/share/Trash/files" "$home/.local/share/Trash/info"
    printf '[package]\nname = "rusty"\n' >"$home/Projects/rusty/Cargo.toml"
    head -c 30000000 /dev/urandom >"$home/Projects/rusty/target/debug/rusty"
    head -c 15000000 /dev/urandom >"$home/.cache/pip/http/blob"
    head -c 25000000 /dev/urandom >"$home/.npm/_cacache/blob"
    head -c 40000000 /dev/urandom >"$home/Downloads/tool_1.2_amd64.deb"
    head -c 60000000 /dev/urandom >"$home/Downloads/Editor-3.1-x86_64.AppImage"
    head -c 5000000 /dev/urandom >"$home/Downloads/old-photos/img1.jpg"
    touch -d '200 days ago' "$home/Downloads/old-photos/img1.jpg" "$home/Downloads/old-photos"
    head -c 210000000 /dev/urandom >"$home/Videos/holiday.mkv"
    for i in $(seq 1 6000); do echo "message $i" >"$home/Documents/mail/m$i.eml"; done
    for i in $(seq 1 1540); do
        mkdir "$home/.local/share/Trash/files/old$i"
        for f in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20; do echo x >"$home/.local/share/Trash/files/old$i/f$f"; done
        printf '[Trash Info]\nPath=%s\nDeletionDate=2026-01-01T10:00:00\n' "$home/Documents/old$i" \
            >"$home/.local/share/Trash/info/old$i.trashinfo"
    done
}

make_disk() {
    truncate -s 300M "$work/disk.img"
    mkfs.ext4 -q -L Backup "$work/disk.img"
    mkdir -p "$work/disk"
    mount -o loop "$work/disk.img" "$work/disk"
}

start_app() {
    env -u XDG_CONFIG_HOME -u XDG_DATA_HOME -u XDG_CACHE_HOME HOME="$home" XDG_RUNTIME_DIR="$work/runtime" \
        QT_QPA_PLATFORM=xcb LANG=en_US.UTF-8 "$APP" >>"$work/app.log" 2>&1 &
}

step=0
shot() { step=$((step + 1)); import -window root "$OUT/$(printf '%02d' "$step")-$1.png"; echo "$(printf '%02d' "$step")-$1"; }
click() { xdotool mousemove "$1" "$2" click 1; sleep "${3:-0.8}"; }
key() { xdotool key "$@"; sleep 0.8; }
# Waits until the app has used no processor time for 1.5 s: a scan or a measurement has ended.
wait_idle() {
    local app last=-1 quiet=0 now
    app=$(pgrep -n -f -- "$APP")
    while [ "$quiet" -lt 3 ]; do
        sleep 0.5
        now=$(awk '{print $14 + $15}' "/proc/$app/stat")
        if [ "$now" = "$last" ]; then quiet=$((quiet + 1)); else quiet=0; fi
        last=$now
    done
}
type_path() { xdotool type --delay 20 "$1"; xdotool key Return; sleep 1.2; }

make_home
make_disk
mkdir -p "$work/runtime"; chmod 700 "$work/runtime"
export DISPLAY=:$((90 + RANDOM % 100))
Xvfb "$DISPLAY" -screen 0 1280x800x24 -nolisten tcp >/dev/null 2>&1 & pids+=($!)
sleep 1
HOME=$work openbox >/dev/null 2>&1 & pids+=($!)
sleep 1
start_app
xdotool search --sync --onlyvisible --name '^Dustlark$' >/dev/null
sleep 1
shot first-window

# Scan, then clean one build folder (Safe: Return confirms).
key ctrl+r; wait_idle; shot scanned
click 88 221; click 364 314 0.3; click 1216 730 1; shot cleanup-confirmation
key Return; sleep 1; shot cleanup-results
key Return

# A Risky file: Return must cancel, not move it to the Trash.
click 80 635; click 364 208 0.3; click 1216 730 1; shot risky-confirmation
key Return; shot risky-still-there
[ -e "$home/Videos/holiday.mkv" ] || echo "FAULT: Return moved a Risky file to the Trash"

# Move to another disk: the same disk is refused, the second disk takes it.
click 1231 208; click 1180 294 1.5; shot move-destination
click 822 384 1.5; shot folder-picker
type_path "$home/Documents"; shot move-same-disk-refused
click 822 384 1.5; type_path "$work/disk"; shot move-other-disk
click 749 455 1.5; shot move-progress
sleep 6; shot move-outcome
key Return; shot move-outcome-closed-by-return

# Empty the Trash: progress, the quit question while it runs, then Stop.
click 63 683; shot trash-row
click 776 163; shot empty-trash-question
click 604 422 0.4; shot empty-trash-progress
key ctrl+q; shot quit-question-while-emptying
click 701 402 0.5; click 785 426 2; shot empty-trash-stopped

# Settings: Ctrl+, opens it, Escape and Ctrl+W close it, its folder picker starts at home.
key ctrl+comma; shot settings
key Escape; shot settings-closed-by-escape
key ctrl+comma; key ctrl+w; shot settings-closed-by-ctrl-w
key ctrl+comma; click 66 453 1.2; shot settings-folder-picker
key Escape; key Escape

# Storage (zoom into a ring of the sunburst), Large Folders, the Safe List.
click 35 119 1; shot storage
click 640 620 1; shot storage-zoomed
click 52 143; shot large-folders
click 88 221; xdotool mousemove 700 268; sleep 0.3; click 1231 268 0.7; shot row-menu
key Down Return; shot added-to-safe-list
click 37 167; shot safe-list

# A second launch brings the minimized window back instead of opening another.
xdotool getactivewindow windowminimize; sleep 1
start_app; sleep 3; shot second-launch
echo "running copies: $(pgrep -c -f -- "$APP")"
key ctrl+q
echo "screenshots in $OUT"
