#!/bin/sh
# measure.sh GAMEDIR [RUNS]: what the real window costs, in CPU milliseconds of the process and its
# threads, as the median of several runs. Prints a table; demands nothing.
GAME=$1
RUNS=${2:-3}
. "$(dirname "$0")/window.sh"
. "$(dirname "$0")/cpu.sh"
open_display 1024x768
use_window_manager

# Places first: asking the console takes time of its own.
start_at=$(middle_of imgbutStart)
menu_at=$(middle_of imgButMenu)
scores_at=$(middle_of imgMenuScores)
ok_at=$(middle_of imgOKScores)

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
table splash idle-screen deal hover-1000 idle-10s menu scores scores-closed pss-board
