#!/usr/bin/env bash
# Redraws the screenshots in docs/screenshots/ from the real screens (offscreen, fixture data).
# Names given as arguments ("overview.png") redraw only those. `--language de` draws them in that
# language into docs/screenshots/de/.
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR=${BUILD_DIR:-build}
folder=docs/screenshots
language=()
if [ "${1:-}" = "--language" ]; then
    language=(--language "$2")
    folder="docs/screenshots/$2"
    shift 2
fi
cmake --build "$BUILD_DIR" --target dustlark-screenshots -j "$(getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2)"
QT_QPA_PLATFORM=offscreen "$BUILD_DIR/bin/dustlark-screenshots" "${language[@]}" "$folder" "$@"
