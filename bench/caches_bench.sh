#!/usr/bin/env bash
# The AI agents, app caches, browser caches and editors scanners (through dustlark-cli) over a
# generated home of 200,000 small cache files, against `du -s` of the same folders, warm cache,
# paired rounds (A B A B ...). Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/caches-home BUILD_DIR=build bench/caches_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/caches-home}
BUILD_DIR=${BUILD_DIR:-build}
LOG=$(mktemp -d)
trap 'rm -rf "$LOG" "$DATA"' EXIT

cmake --build "$BUILD_DIR" --target dustlark-cli -j 2 >/dev/null
CLI="$BUILD_DIR/bin/dustlark-cli"

rm -rf "$DATA"
python3 - "$DATA" <<'PY'
import os, sys
home = sys.argv[1]
# (folder, number of files): 200,000 files in folders of 250, 2,000 bytes each.
places = [(f"Library/Caches/com.example.app{n}", 2500) for n in range(40)] + [
    ("Library/Caches/Google/Chrome/Default/Cache", 30000),
    ("Library/Application Support/Code/CachedData", 20000),
    ("Library/Application Support/Slack/Code Cache", 10000),
    (".claude/projects/-work-project", 20000),
    (".codex/sessions/2025/03", 20000),
]
block = b"x" * 2000
for folder, count in places:
    for start in range(0, count, 250):
        sub = os.path.join(home, folder, f"d{start // 250}")
        os.makedirs(sub, exist_ok=True)
        for i in range(start, min(start + 250, count)):
            with open(os.path.join(sub, f"f{i}"), "wb") as f:
                f.write(block)
for command in ("claude", "codex"):
    os.makedirs(os.path.join(home, ".local/bin"), exist_ok=True)
    open(os.path.join(home, ".local/bin", command), "w").close()
PY
FOLDERS=("$DATA/Library/Caches" "$DATA/Library/Application Support" "$DATA/.claude" "$DATA/.codex")
du -s "${FOLDERS[@]}" >/dev/null  # warm the inode cache

MEASURE_SHOW='^(AI Agents|App Caches|Browser Caches|Editors) |^[0-9]'
source "$(dirname "$0")/measure.sh"

echo "== machine"
grep -m1 'model name' /proc/cpuinfo; nproc; uname -r; du --version | head -1
echo "files: $(find "$DATA" -type f | wc -l)"

for round in $(seq 1 "${ROUNDS:-3}"); do
    echo "== round $round (load average $(cut -d' ' -f1-3 /proc/loadavg))"
    measure dustlark "$CLI" scan --home "$DATA" --category aiAgents --category appCaches \
        --category browserCaches --category editors
    measure du du -s "${FOLDERS[@]}"
    awk -v a="$(cat "$LOG/dustlark.wall")" -v b="$(cat "$LOG/du.wall")" \
        -v c="$(cat "$LOG/dustlark.cpu")" -v d="$(cat "$LOG/du.cpu")" \
        'BEGIN {printf "ratio dustlark/du: wall %.2f, cpu %.2f\n", a / b, c / d}'
done
