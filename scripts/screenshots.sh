#!/usr/bin/env bash
# Redraws the screenshots in docs/screenshots/ from the real screens (offscreen, fixture data).
# Names given as arguments ("overview.png") redraw only those.
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR=${BUILD_DIR:-build}
cmake --build "$BUILD_DIR" --target dustlark-screenshots -j "$(getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2)"
QT_QPA_PLATFORM=offscreen "$BUILD_DIR/bin/dustlark-screenshots" docs/screenshots "$@"
