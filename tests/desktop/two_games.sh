#!/bin/sh
# two_games.sh GAMEDIR: a second start in the directory of a running game. Neither falls, and whoever
# saves last leaves a whole file of its own.
GAME=$1
. "$(dirname "$0")/window.sh"
RECORDS=$WORK/game
mkdir "$RECORDS/SCOR"

# Two consoles write their records at the same time, a hundred times. Each puts its letter into all
# rows of the history and all names of a table; whoever reads in between finds one letter alone.
writer() {
    {
        echo boot
        for row in $(seq 42); do printf 'set History(1,1,%d).Name "%s"\n' "$row" "$1"; done
        for place in $(seq 10); do printf 'set ScoreTable(1,19,%d).Name "%s"\n' "$place" "$1"; done
        for _ in $(seq 100); do printf 'call SaveHistory\ncall SaveScores\ncall SaveWonLost\ncall SaveSettings\n'; done
    } | "$GAME/pagodas-console" "$RECORDS" >"$WORK/answers.$1"
}
writer x &
first=$!
writer y &
second=$!
looks=0
while kill -0 $first 2>/dev/null || kill -0 $second 2>/dev/null; do
    for file in History.dat:9828:42 SCOR/Scores-A:129600:10; do
        path=$RECORDS/${file%%:*}
        rest=${file#*:}
        cp "$path" "$WORK/seen" 2>/dev/null || continue
        size=$(stat -c %s "$WORK/seen")
        [ "$size" != 0 ] || continue # as a first start made it
        [ "$size" = "${rest%:*}" ] || fail "${file%%:*} had $size bytes"
        letters=$(tr -cd xy <"$WORK/seen")
        [ ${#letters} = "${rest#*:}" ] || fail "${file%%:*} held $letters"
        case $letters in *xy* | *yx*) fail "${file%%:*} was mixed: $letters" ;; esac
        looks=$((looks + 1))
    done
done
wait $first || fail "the first console fell"
wait $second || fail "the second console fell"
for name in x y; do
    [ "$(grep -vc '^ok$' "$WORK/answers.$name")" = 0 ] || fail "console $name: $(grep -v '^ok$' "$WORK/answers.$name" | head -1)"
done
[ "$looks" -gt 10 ] || fail "only $looks looks at the files"
[ "$(stat -c %s "$RECORDS/Settings.dat")" = 508 ] || fail "the settings are not whole"
[ "$(stat -c %s "$RECORDS/Won-Lost.dat")" = 12000 ] || fail "the counts are not whole"
[ -z "$(find "$RECORDS" -name '*.new*')" ] || fail "a file was left beside"
echo "two consoles: $looks looks found whole files"

# Two windows in one directory. The first is left while the second runs, then the second.
rm -rf "$RECORDS"/*.dat "$RECORDS/SCOR"
open_display 1280x900
use_window_manager
start_game
older=$program
start_game
kill -0 "$older" 2>/dev/null || fail "the first game fell"
# The second stands before the first, in full screen.
SCALE=1.171875 ORIGIN_X=40
press imgbutStart
press lblSkipTrack # turns the music on
press lblCloseGame
wait_for_end
cp "$RECORDS/Settings.dat" "$WORK/second"
[ "$(stat -c %s "$WORK/second")" = 508 ] || fail "the second game's settings are not whole"
kill -0 "$older" 2>/dev/null || fail "the first game fell with the second"
program=$older
settle
press lblCloseGame
wait_for_end
[ "$(stat -c %s "$RECORDS/Settings.dat")" = 508 ] || fail "the first game's settings are not whole"
music_of() { od -An -td2 -j12 -N2 "$1" | tr -d ' '; }
[ "$(music_of "$WORK/second") $(music_of "$RECORDS/Settings.dat")" = "1 0" ] ||
    fail "the later writer's settings are not there"
echo "two windows: neither fell, the later one's settings stand"
