#!/bin/sh
# measure_music.sh GAMEDIR: what thirty seconds of music cost in CPU, the memory meanwhile, and how
# long the splash stands. Prints a table; demands nothing.
GAME=$1
. "$(dirname "$0")/window.sh"
open_display 1280x900
use_window_manager
# milliseconds of all threads, also of those that have ended, in steps of 10
cpu() { awk '{ print ($14 + $15) * 10 }' /proc/"$program"/stat; }
pss() { awk -v field="$1:" '$1 == field { printf "%.1f\n", $2 / 1024 }' /proc/"$program"/smaps_rollup; }

# In a window, whose size tells the splash from the main screen: WIDTH waits for that width.
milliseconds() { echo $(($(date +%s%N) / 1000000)); }
wait_for_width() {
    until xdotool search --onlyvisible --name '^Pagodas$' getwindowgeometry 2>/dev/null |
        grep -q "Geometry: $1x"; do sleep 0.02; done
    milliseconds
}
for music in 0 1; do
    { printf '\1\0'; head -c 10 /dev/zero; printf "\\$music\0"; } >"$WORK/game/Settings.dat"
    "$WORK/game/pagodas" 2>/dev/null &
    program=$!
    splash=$(wait_for_width 640)
    main=$(wait_for_width 1024)
    echo "music $music: the main screen came $((main - splash)) ms after the splash"
    sleep 3
    before=$(cpu)
    sleep 30
    echo "music $music: 30 s cost $(($(cpu) - before)) ms, PSS $(pss Pss) MB, own $(pss Pss_Anon) MB"
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=
done
