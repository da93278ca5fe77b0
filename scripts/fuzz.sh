#!/usr/bin/env bash
# Builds a libFuzzer program for each parser (clang, AddressSanitizer, UndefinedBehaviorSanitizer)
# into ./build-fuzz (or $BUILD_DIR) and runs each for SECONDS (default 60), starting from its seeds
# in tests/fixtures/fuzz/<program>/. New inputs go to $BUILD_DIR/corpus/<program>/, findings to
# $BUILD_DIR/findings/<program>/; replay one with `$BUILD_DIR/bin/<program> <file>`.
# Exits non-zero when any program found something. Not part of scripts/test.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
export BUILD_DIR=${BUILD_DIR:-build-fuzz}

scripts/setup.sh --fuzz
if [ "$(uname -s)" = "Darwin" ]; then
    export CC="$(brew --prefix llvm)/bin/clang" CXX="$(brew --prefix llvm)/bin/clang++"
else
    export CC=clang CXX=clang++
fi
BUILD_TARGET=fuzzers scripts/build.sh -DDUSTLARK_FUZZ=ON -DDUSTLARK_TESTS=OFF

# An undefined operation stops the program like a crash, so libFuzzer keeps the input.
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
failed=()
summary=()
for seeds in tests/fixtures/fuzz/*/; do
    program=$(basename "$seeds")
    corpus="$BUILD_DIR/corpus/$program" findings="$BUILD_DIR/findings/$program"
    rm -rf "$findings"
    mkdir -p "$corpus" "$findings"
    log="$BUILD_DIR/findings/$program.log"
    echo "== $program: ${seconds}s"
    status=0
    "$BUILD_DIR/bin/$program" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$findings/" "$corpus" "$seeds" >"$log" 2>&1 || status=$?
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    found=$(find "$findings" -type f | wc -l)
    summary+=("$program: ${runs:-?} runs, $found finding(s), corpus $(find "$corpus" -type f | wc -l) inputs")
    if [ "$status" -ne 0 ] || [ "$found" -ne 0 ]; then
        failed+=("$program")
        grep -E "^(SUMMARY|==[0-9]+==ERROR|.*runtime error|fuzz: )" "$log" | head -5 || true
    fi
done
printf '%s\n' "${summary[@]}"
if [ ${#failed[@]} -gt 0 ]; then
    echo "Findings in: ${failed[*]} (logs in $BUILD_DIR/findings/)" >&2
    exit 1
fi
