#!/usr/bin/env bash
# Configures and builds into ./build (or $BUILD_DIR); only $BUILD_TARGET when set. Extra arguments go to
# cmake's configure step.
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR=${BUILD_DIR:-build}
jobs=$(getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2)
extra=()
if [ "$(uname -s)" = "Darwin" ]; then
    extra+=("-DCMAKE_PREFIX_PATH=$(brew --prefix qt);$(brew --prefix openssl@3)")
fi
cmake -S . -B "$BUILD_DIR" "${extra[@]}" "$@"
cmake --build "$BUILD_DIR" -j "$jobs" ${BUILD_TARGET:+--target "$BUILD_TARGET"}
