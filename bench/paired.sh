#!/usr/bin/env bash
# A paired timer for a shared machine: runs command A and command B alternately (A B A B ...),
# each under /usr/bin/time, and reports per round both commands' wall and processor time and
# peak memory, then the median of the per-pair ratios A/B. Load from other processes comes and
# goes; a pair sees about the same load, so the median ratio is steadier than any one time.
#   bench/paired.sh ROUNDS "command A" "command B"
# Prints the medians last as "median wall A/B", "median cpu A/B" and the peak memory of each.
set -euo pipefail
ROUNDS=$1
A=$2
B=$3
LOG=$(mktemp -d)
trap 'rm -rf "$LOG"' EXIT

# time_one COMMAND FILE: appends "wall cpu peakKiB" of one run to FILE.
time_one() {
    /usr/bin/time -f '%e %U %S %M' -o "$LOG/t" sh -c "$1" >/dev/null 2>"$LOG/err" || {
        cat "$LOG/err" >&2
        return 1
    }
    awk '{printf "%s %.2f %s\n", $1, $2 + $3, $4}' "$LOG/t" >>"$2"
}

for round in $(seq 1 "$ROUNDS"); do
    time_one "$A" "$LOG/a"
    time_one "$B" "$LOG/b"
    paste -d' ' <(tail -1 "$LOG/a") <(tail -1 "$LOG/b") |
        awk -v r="$round" '{printf "round %d  A wall %5.2f s cpu %5.2f s peak %6d KiB | B wall %5.2f s cpu %5.2f s peak %6d KiB | wall A/B %.2f cpu A/B %.2f\n",
                            r, $1, $2, $3, $4, $5, $6, ($4 > 0 ? $1 / $4 : 0), ($5 > 0 ? $2 / $5 : 0)}'
done

median() { sort -g | awk '{v[NR] = $1} END {print (NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2)}'; }
paste -d' ' "$LOG/a" "$LOG/b" | awk '{if ($4 > 0) print $1 / $4}' | median | awk '{printf "median wall A/B %.2f\n", $1}'
paste -d' ' "$LOG/a" "$LOG/b" | awk '{if ($5 > 0) print $2 / $5}' | median | awk '{printf "median cpu A/B %.2f\n", $1}'
awk '{print $3}' "$LOG/a" | sort -n | tail -1 | awk '{printf "peak memory A %d KiB\n", $1}'
awk '{print $3}' "$LOG/b" | sort -n | tail -1 | awk '{printf "peak memory B %d KiB\n", $1}'
