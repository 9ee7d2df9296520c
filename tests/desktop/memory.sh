#!/bin/sh
# memory.sh GAMEDIR: what a hundred deals with new tiles and backdrops leave behind, with music on.
# The own memory after the hundredth must lie at most a megabyte above that after the first; files
# that other programs share count in PSS as those come and go.
GAME=$1
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager
# pss FIELD: kilobytes. Pss_Anon leaves out the files that are shared with whoever runs beside.
pss() { awk -v field="$1:" '$1 == field { print $2 }' /proc/"$program"/smaps_rollup; }

# Music on; tile sets and backdrops in rotation, each from number 1.
{ head -c 12 /dev/zero; printf '\1\0'; head -c 6 /dev/zero; printf '\1\0'; head -c 4 /dev/zero; printf '\1\0'; } \
    >"$WORK/game/Settings.dat"
start_at=$(middle_of imgbutStart)
yes_at=$(middle_of imgEndYES)
click() {
    # shellcheck disable=SC2086
    xdotool mousemove $1 sleep 0.05 mousedown 1 sleep 0.05 mouseup 1 sleep 0.1
}
start_game
idle=$(pss Pss)
click "$start_at"
sleep 1
first=$(pss Pss)
first_own=$(pss Pss_Anon)
for _ in $(seq 99); do
    click "$start_at" # it is END now
    click "$yes_at"
    click "$start_at"
done
sleep 1
last=$(pss Pss)
last_own=$(pss Pss_Anon)
shot memory-last
echo "PSS idle with music $idle kB, after the first deal $first kB, after the hundredth $last kB"
echo "of it the program's own: $first_own kB, then $last_own kB"

# The rotation has counted the deals: 72 sets and 28 of the second round.
press lblCloseGame
wait_for_end
next=$(od -An -td2 -j20 -N2 "$WORK/game/Settings.dat" | tr -d ' ')
[ "$next" = 29 ] || fail "there were no hundred deals: the next tile set is $next"
[ "$idle" -lt 71680 ] || fail "more than 70 MB"
[ $((last_own - first_own)) -le 1024 ] || fail "the deals leave $((last_own - first_own)) kB behind"
