#!/usr/bin/env bash
# Sets up, builds and runs every test. Pass -DDUSTLARK_SANITIZE=ON (with BUILD_DIR=build-asan)
# to run the suite under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
python3 scripts/check-floors.py
# The stub compile check of the macOS code (not a macOS build), where no Mac is; "selftest" also
# breaks copies of mac.cpp on purpose and fails unless the check catches each.
[ "$(uname -s)" = Darwin ] || scripts/check-mac.sh selftest
scripts/build.sh "$@"
BUILD_DIR=${BUILD_DIR:-build}
jobs=$(getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2)
QT_QPA_PLATFORM=offscreen ctest --test-dir "$BUILD_DIR" --output-on-failure -j "$jobs"
