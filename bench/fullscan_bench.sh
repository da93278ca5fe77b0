#!/usr/bin/env bash
# The full scan (`dustlark-cli scan --home H --json`, all scanners) against `du -s -B1 H` with
# the paired timer (bench/paired.sh: A and B alternate, the median of the per-pair ratios is
# reported), on three homes:
#   - dev: the developer home of `projects_bench generate` (about 487,000 entries);
#   - npm: a real npm-heavy home (bench/npm_home.sh; needs npm and the npm registry);
#   - gen: `storage_bench generate H 300000`, a generated home of 300,000 entries.
# Everything is measured in a private mount namespace with empty tmpfs on /tmp and /var/tmp, so
# the temporary-files scanner reads only the home, as du does (`unshare -m` as root, else
# `unshare -rm`). Warm cache (`find` walks each home first). Homes go under $DATA and are removed
# afterwards unless KEEP=1; a later run with KEEP=1 measures the kept homes again. NPM=0 leaves
# the npm home out. BEFORE=path/to/another/dustlark-cli also pairs that build against du, in the
# same rounds' conditions, for before/after figures.
#   DATA=/work/bench-data/fullscan BUILD_DIR=build-bench ROUNDS=5 bench/fullscan_bench.sh
# Prints, per home, the paired rounds and a last line
#   "<home> full scan / du -s: median cpu X (min-max), median wall Y (min-max)".
set -euo pipefail
cd "$(dirname "$0")/.."
DATA=${DATA:-/work/bench-data/fullscan}
BUILD_DIR=${BUILD_DIR:-build-bench}
ROUNDS=${ROUNDS:-5}
NPM=${NPM:-1}
KEEP=${KEEP:-0}
BEFORE=${BEFORE:-}
[ "$KEEP" = 1 ] || trap 'rm -rf "$DATA/dev" "$DATA/npm" "$DATA/gen"' EXIT

cmake -S . -B "$BUILD_DIR" -DDUSTLARK_BENCH=ON >/dev/null
cmake --build "$BUILD_DIR" --target projects_bench storage_bench dustlark-cli -j 2 >/dev/null
BIN="$(pwd)/$BUILD_DIR/bin"

source bench/measure.sh
describe_machine "$DATA"

echo "== generate"
[ -d "$DATA/dev" ] || "$BIN/projects_bench" generate "$DATA/dev" >/dev/null
[ -d "$DATA/gen" ] || "$BIN/storage_bench" generate "$DATA/gen" 300000 >/dev/null
homes=(dev gen)
if [ "$NPM" = 1 ]; then
    [ -d "$DATA/npm" ] || bench/npm_home.sh "$DATA/npm"
    homes+=(npm)
fi
for home in "${homes[@]}"; do
    echo "$home: $(find "$DATA/$home" | wc -l) entries"  # also warms the cache
done

namespace=(unshare -m)
[ "$(id -u)" = 0 ] || namespace=(unshare -rm)
"${namespace[@]}" bash -s "$DATA" "$BIN" "$ROUNDS" "$BEFORE" "${homes[@]}" <<'INNER'
set -euo pipefail
DATA=$1 BIN=$2 ROUNDS=$3 BEFORE=$4
shift 4
mount -t tmpfs none /tmp
mount -t tmpfs none /var/tmp
unset TMPDIR
# pair LABEL HOME CLI: the paired rounds of CLI's full scan of HOME against du, then the summary.
pair() {
    local out
    out=$(bench/paired.sh "$ROUNDS" "'$3' scan --home '$DATA/$2' --json" "du -s -B1 '$DATA/$2'")
    echo "$out"
    echo "$out" | awk -v label="$1" '
        /^round/ {for (i = 1; i <= NF; i++) { if ($i == "A/B" && $(i-1) == "wall") w[++nw] = $(i+1);
                                              if ($i == "A/B" && $(i-1) == "cpu") c[++nc] = $(i+1) } }
        /^median wall/ {mw = $4} /^median cpu/ {mc = $4}
        function lo(a, n,  i, m) { m = a[1]; for (i = 2; i <= n; i++) if (a[i] < m) m = a[i]; return m }
        function hi(a, n,  i, m) { m = a[1]; for (i = 2; i <= n; i++) if (a[i] > m) m = a[i]; return m }
        END {printf "%s / du -s: median cpu %s (%s-%s), median wall %s (%s-%s)\n", label, mc, lo(c, nc), hi(c, nc), mw, lo(w, nw), hi(w, nw)}'
}
for home in "$@"; do
    echo "== full scan of $home / du -s"
    pair "$home full scan" "$home" "$BIN/dustlark-cli"
    if [ -n "$BEFORE" ]; then
        echo "== full scan of $home by $BEFORE / du -s"
        pair "$home full scan (before)" "$home" "$BEFORE"
    fi
done
INNER
