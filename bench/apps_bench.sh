#!/usr/bin/env bash
# The apps and leftovers scanners through the report tool against `du -s` over the same fixture
# home: 20 apps in ~/Applications with their data, and 400 removed apps' data in the Library
# (about 100,000 files). Fresh files are younger than 30 days, so the leftovers rows are
# measured and then dropped: the run times the listing, matching and measuring, not the
# personal-data search of kept rows. The cache is warmed first; rounds alternate the tools.
# Needs /usr/bin/time. Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/apps BUILD_DIR=build bench/apps_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/apps}
BUILD_DIR=${BUILD_DIR:-build}
ROUNDS=${ROUNDS:-3}
LOG=$(mktemp -d)
trap 'rm -rf "$LOG" "$DATA"' EXIT

cmake --build "$BUILD_DIR" --target dustlark-cli -j 2 >/dev/null
CLI="$BUILD_DIR/bin/dustlark-cli"
source "$(dirname "$0")/measure.sh"

echo "== generate"
rm -rf "$DATA"
python3 - "$DATA" <<'PY'
import os, sys
home = sys.argv[1]
def write(path, size):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "wb") as f:
        f.write(b"x" * size)
def app(i):
    bundle = f"{home}/Applications/App {i}.app/Contents"
    write(f"{bundle}/MacOS/App {i}", 200_000)
    with open(f"{bundle}/Info.plist", "w") as f:
        f.write(f'<?xml version="1.0"?><plist version="1.0"><dict><key>CFBundleIdentifier</key>'
                f'<string>com.bench{i}.App</string><key>CFBundleExecutable</key><string>App {i}</string></dict></plist>')
for i in range(20):
    app(i)
    for n in range(500):
        write(f"{home}/Library/Application Support/com.bench{i}.App/f{n}", 4096)
for i in range(400):
    for n in range(200):
        write(f"{home}/Library/Application Support/org.gone{i}.App/d{n // 50}/f{n}", 4096)
    for n in range(25):
        write(f"{home}/Library/Caches/org.gone{i}.App/c{n}", 2048)
    write(f"{home}/Library/Preferences/org.gone{i}.App.plist", 500)
PY
echo "files: $(find "$DATA" -type f | wc -l)"
du -s "$DATA/Library" >/dev/null  # warm the cache

export MEASURE_SHOW='^$'
for round in $(seq "$ROUNDS"); do
    echo "== round $round"
    measure leftovers "$CLI" scan --home "$DATA" --category leftovers
    measure du-library du -s "$DATA/Library"
    measure apps "$CLI" scan --home "$DATA" --category apps
    measure du-home du -s "$DATA"
done
