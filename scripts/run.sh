#!/usr/bin/env bash
# Sets up, builds and starts the app. Without a display on Linux it runs under a virtual one.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh
BUILD_DIR=${BUILD_DIR:-build}
if [ "$(uname -s)" = "Darwin" ]; then
    exec open "$BUILD_DIR/bin/Dustlark.app"
fi
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    exec xvfb-run -a "$BUILD_DIR/bin/dustlark"
fi
exec "$BUILD_DIR/bin/dustlark"
