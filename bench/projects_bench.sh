#!/usr/bin/env bash
# The projects scanner (walk, project dates, build-folder sizes, git checks, worktrees, large
# files, duplicates) against `du -s` over the same generated developer home of about 480,000
# entries: 300 projects with node_modules, Rust targets and virtual environments, nested
# packages, real git repositories and a few worktrees. The page cache cannot be dropped here,
# so the tree is read once to warm it and each tool runs twice; the second round is reported.
# Needs /usr/bin/time (apt-get install time) and git. Results go into docs/benchmarks.md by hand.
#   DATA=/work/bench-data/home BUILD_DIR=build-bench bench/projects_bench.sh
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/home}
BUILD_DIR=${BUILD_DIR:-build-bench}
LOG=$(mktemp -d)
trap 'rm -rf "$LOG" "$DATA"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target projects_bench -j 2 >/dev/null
BENCH="$BUILD_DIR/bin/projects_bench"

source "$(dirname "$0")/measure.sh"

git_quiet() {
    git -c init.defaultBranch=main -c user.name=Bench -c user.email=bench@example.com "$@" >/dev/null
}

mkdir -p "$(dirname "$DATA")"
echo "== machine"
grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r
df -T "$(dirname "$DATA")" | awk 'NR==2 {print "file system: " $2 " on " $1}'

echo "== generate"
rm -rf "$DATA"
/usr/bin/time -f 'generated in %e s' "$BENCH" generate "$DATA"
for project in "$DATA"/code/p*; do git_quiet init -q "$project"; done
for n in 0 1 2; do  # three repositories with two worktrees each, one of them detached
    repo="$DATA/code/p$n"
    git_quiet -C "$repo" add src package.json
    git_quiet -C "$repo" commit -q -m first
    git_quiet -C "$repo" worktree add -q -b agent-a "$DATA/code/p$n-agent-a"
    git_quiet -C "$repo" worktree add -q --detach "$DATA/code/p$n-agent-b"
done
mkdir -p "$DATA/code/p5/vendor/lib" && git_quiet init -q "$DATA/code/p5/vendor/lib"  # a nested repository
echo "entries: $(find "$DATA" | wc -l)"
find "$DATA" >/dev/null  # warm the cache

for round in 1 2; do
    echo "== round $round"
    measure projects "$BENCH" scan "$DATA"
    measure du du -s -B1 "$DATA"
done

echo "== ratio of round 2 (below 1.0: faster than du -s)"
awk -v p="$(cat "$LOG/projects.wall")" -v d="$(cat "$LOG/du.wall")" 'BEGIN { printf "projects / du  %.2f\n", p/d }'
