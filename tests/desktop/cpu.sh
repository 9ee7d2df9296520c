# cpu.sh: what the program in the virtual display costs. Read by the scripts that measure, not run.

# CPU milliseconds of all threads so far
cpu() { cat /proc/"$program"/task/*/schedstat | awk '{ s += $1 } END { printf "%.2f\n", s / 1e6 }'; }
pss() { awk '/^Pss:/ { printf "%.1f\n", $2 / 1024 }' /proc/"$program"/smaps_rollup; }
note() { echo "$2" >>"$WORK/measure.$1"; }
since() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f\n", b - a }'; }
median() { sort -n "$WORK/measure.$1" | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

# click_at PLACE: the CPU of a click from the press to the last pixel that it changes
click_at() {
    # shellcheck disable=SC2086
    xdotool mousemove $1
    sleep 0.3
    before=$(cpu)
    xdotool mousedown 1 sleep 0.05 mouseup 1 # as press does: with a time between
    sleep 0.7
    since "$before" "$(cpu)"
}

# table NAME...: the medians
table() {
    printf '%-16s %s\n' what median
    for what; do printf '%-16s %s\n' "$what" "$(median "$what")"; done
}
