#!/bin/sh
# measure.sh GAMEDIR [RUNS]: what the real window costs, in CPU milliseconds of the process and its
# threads, as the median of several runs. Prints a table; demands nothing.
GAME=$1
RUNS=${2:-3}
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager

# CPU milliseconds of all threads so far
cpu() { cat /proc/"$program"/task/*/schedstat | awk '{ s += $1 } END { printf "%.2f\n", s / 1e6 }'; }
pss() { awk '/^Pss:/ { printf "%.1f\n", $2 / 1024 }' /proc/"$program"/smaps_rollup; }
note() { echo "$2" >>"$WORK/measure.$1"; }
since() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f\n", b - a }'; }
median() { sort -n "$WORK/measure.$1" | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }

# Places first: asking the console takes time of its own.
start_at=$(middle_of imgbutStart)
menu_at=$(middle_of imgButMenu)
scores_at=$(middle_of imgMenuScores)
ok_at=$(middle_of imgOKScores)
click_at() {
    # shellcheck disable=SC2086
    xdotool mousemove $1
    sleep 0.3
    before=$(cpu)
    xdotool click 1
    sleep 0.5
    since "$before" "$(cpu)"
}

for run in $(seq "$RUNS"); do
    rm -f "$WORK/game/Settings.dat"
    "$WORK/game/pagodas" 2>/dev/null &
    program=$!
    sleep 0.8
    note splash "$(cpu)"
    sleep 5.2
    note idle-screen "$(cpu)"
    note deal "$(click_at "$start_at")"
    note pss-board "$(pss)"
    # 1000 moves of the pointer over the board
    before=$(cpu)
    {
        for step in $(seq 500); do
            echo "mousemove $((140 + step % 25 * 30)) $((140 + step / 25 * 18))"
            echo "mousemove $((155 + step % 25 * 30)) $((200 + step / 25 * 15))"
        done
    } | xdotool - >/dev/null
    sleep 0.5
    note hover-1000 "$(since "$before" "$(cpu)")"
    xdotool mousemove 5 300
    sleep 0.5
    before=$(cpu)
    sleep 10
    note idle-10s "$(since "$before" "$(cpu)")"
    note menu "$(click_at "$menu_at")"
    note scores "$(click_at "$scores_at")"
    note scores-closed "$(click_at "$ok_at")"
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=
done
printf '%-16s %s\n' what median
for what in splash idle-screen deal hover-1000 idle-10s menu scores scores-closed pss-board; do
    printf '%-16s %s\n' "$what" "$(median "$what")"
done
