#!/usr/bin/env bash
# Redraws the screenshots in docs/screenshots/ from the real screens (offscreen, fixture data).
# Names given as arguments ("overview.png") redraw only those. `--language de` draws them in that
# language into docs/screenshots/de/. `--smallest` draws every sheet over the window at its
# smallest size into smallest/ beside them, to look for texts a small window cuts.
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR=${BUILD_DIR:-build}
folder=docs/screenshots
language=()
smallest=0
while [ $# -gt 0 ]; do
    case "$1" in
        --language) language=(--language "$2"); folder="docs/screenshots/$2"; shift 2 ;;
        --smallest) smallest=1; shift ;;
        *) break ;;
    esac
done
names=("$@")
if [ "$smallest" = 1 ]; then
    folder="$folder/smallest"
    export DUSTLARK_SMALLEST_WINDOW=1
    if [ ${#names[@]} -eq 0 ]; then
        names=(cleanup-confirmation.png cleanup-results.png move-destination-refused.png move-destination.png
               move-progress.png move-outcome.png quit-question.png)
    fi
fi
cmake --build "$BUILD_DIR" --target dustlark-screenshots -j "$(getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2)"
QT_QPA_PLATFORM=offscreen "$BUILD_DIR/bin/dustlark-screenshots" "${language[@]}" "$folder" "${names[@]}"
