#!/usr/bin/env bash
# Photographs the packaged app as a person meets it: the .deb installed into a fresh root, the
# app started from its desktop entry under Xvfb with a window manager (openbox, whose title bar
# shows the window's icon), saved as docs/screenshots/installed-app.png, with the title bar's
# corner four times enlarged beside it (installed-app-icon.png). Run it after scripts/package.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh openbox imagemagick x11-utils xvfb
BUILD_DIR=${BUILD_DIR:-build-package}
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$BUILD_DIR/CMakeCache.txt")
deb="$BUILD_DIR/dustlark_${version}_$(dpkg --print-architecture).deb"
out=docs/screenshots/installed-app.png
corner=docs/screenshots/installed-app-icon.png

work=$(mktemp -d /tmp/dustlark-shot-XXXXXX)
cleanup() { kill "${pids[@]}" 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"; }
pids=()
trap cleanup EXIT
root=$work/root
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates" && touch "$root/var/lib/dpkg/status"
dpkg --root="$root" --force-depends --install "$deb" >"$work/dpkg.log" 2>&1

export DISPLAY=:$((90 + RANDOM % 100))
Xvfb "$DISPLAY" -screen 0 1400x900x24 -nolisten tcp >/dev/null 2>&1 & pids+=($!)
sleep 1
HOME=$work/home openbox >/dev/null 2>&1 & pids+=($!)
sleep 1
entry="$root/usr/share/applications/app.dustlark.Dustlark.desktop"
exec_line=$(sed -n 's/^Exec=//p' "$entry" | sed 's/ *%[fFuUick]//g')
mkdir -p "$work/home"
PATH="$root/usr/bin:$PATH" HOME=$work/home XDG_DATA_DIRS="$root/usr/share:/usr/share" \
    sh -c "exec $exec_line" >"$work/app.log" 2>&1 & pids+=($!)
sleep 5
# The client window, the one that carries WM_CLASS; Qt also makes a hidden helper window of that name.
window=$(xwininfo -root -tree | awk '/"Dustlark": \("dustlark" "Dustlark"\)/ && !found { print $1; found = 1 }')
[ -n "$window" ] || { echo "No Dustlark window appeared:" >&2; cat "$work/app.log" >&2; exit 1; }
# The launcher ties the window to its entry (and so to its icon) by the class part of WM_CLASS.
class=$(xprop -id "$window" WM_CLASS | sed 's/.*, "\(.*\)"$/\1/')
wanted=$(sed -n 's/^StartupWMClass=//p' "$entry")
echo "Window $window has the class \"$class\"; the desktop entry says StartupWMClass=$wanted"
[ "$class" = "$wanted" ] || { echo "The window's class does not match the desktop entry." >&2; exit 1; }
xprop -id "$window" _NET_WM_ICON | sed -n 1p
import -window root "$out"
# The window manager's title bar sits just above the window: its left end holds the icon.
x=$(xwininfo -id "$window" | awk '/Absolute upper-left X/ { print $NF }')
y=$(xwininfo -id "$window" | awk '/Absolute upper-left Y/ { print $NF }')
/usr/bin/convert "$out" -crop "200x24+$((x - 4))+$((y - 24))" +repage -filter point -resize 400% "$corner"
echo "Saved $out and $corner"
