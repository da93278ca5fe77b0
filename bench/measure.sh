# Sourced by the bench scripts. measure LABEL COMMAND...: runs the command under
# /usr/bin/time -v, prints one line of wall, user and system time, CPU share and peak memory,
# keeps the wall and processor times in $LOG/LABEL.wall and $LOG/LABEL.cpu for ratios, and
# shows the command's output indented (only the lines matching $MEASURE_SHOW when it is set).
measure() {
    local label=$1; shift
    /usr/bin/time -v "$@" >"$LOG/out" 2>"$LOG/time"
    local wall user sys cpu rss
    wall=$(awk -F': ' '/Elapsed \(wall clock\)/ {n=split($2,t,":"); s=0; for(i=1;i<=n;i++) s=s*60+t[i]; print s}' "$LOG/time")
    user=$(awk -F': ' '/User time/ {print $2}' "$LOG/time")
    sys=$(awk -F': ' '/System time/ {print $2}' "$LOG/time")
    cpu=$(awk -F': ' '/Percent of CPU/ {print $2}' "$LOG/time")
    rss=$(awk -F': ' '/Maximum resident set size/ {print $2}' "$LOG/time")
    echo "$wall" >"$LOG/$label.wall"
    awk -v u="$user" -v s="$sys" 'BEGIN {print u + s}' >"$LOG/$label.cpu"
    printf '%-16s wall %6.2f s  user %6.2f s  sys %5.2f s  cpu %5s  peak %7d KiB\n' \
        "$label" "$wall" "$user" "$sys" "$cpu" "$rss"
    if [ -n "${MEASURE_SHOW:-}" ]; then
        grep -E "$MEASURE_SHOW" "$LOG/out" || true
    else
        sed 's/^/                 /' "$LOG/out"
    fi
}

# describe_machine DATA: the processor, cores, kernel, load and DATA's file system, for the record.
describe_machine() {
    echo "== machine"
    grep -m1 'model name' /proc/cpuinfo; echo "cores: $(nproc)"; uname -r; uptime
    mkdir -p "$1"
    df -T "$1" | awk 'NR==2 {print "file system: " $2 " on " $1}'
}

# pair_storage ROUNDS BIN HOME: the storage analysis of HOME (storage_bench in BIN) against
# du -s -c of exactly the roots it walks, through paired.sh.
pair_storage() {
    local roots
    roots=$("$2/storage_bench" roots "$3" | awk '{printf "'\''%s'\'' ", $0}')
    "$(dirname "${BASH_SOURCE[0]}")/paired.sh" "$1" "'$2/storage_bench' analyze '$3'" "du -s -B1 -c $roots"
}
