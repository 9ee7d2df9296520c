#!/bin/sh
# music.sh GAMEDIR: tracks follow one another in the real program, on SDL's dummy sound device, which
# takes the time that a real one does. Broken and missing tracks are silence and take none.
GAME=$1
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager
TRACKS="$WORK/game/DATA"
rm "$TRACKS"
cp -rs "$(realpath "$GAME/DATA")" "$TRACKS"

# Music on, and CurrentTrack as given.
settings() {
    { head -c 12 /dev/zero; printf '\1\0'; head -c 16 /dev/zero; printf "\\$(printf %o "$1")\0"; } \
        >"$WORK/game/Settings.dat"
}
# tone SECONDS NUMBER...
tone() {
    ffmpeg -v error -y -f lavfi -i "sine=frequency=440:duration=$1" -ac 2 -f mp3 "$WORK/tone"
    shift
    for number; do
        rm -f "$TRACKS/MS00$number"
        cp "$WORK/tone" "$TRACKS/MS00$number"
    done
}
# The track that the program holds open.
playing() {
    ls -l /proc/"$program"/fd 2>/dev/null | sed -n 's|.*/DATA/MS00||p'
}
cpu() { cat /proc/"$program"/task/*/schedstat | awk '{ s += $1 } END { printf "%d\n", s / 1e6 }'; }
label() { import -window root -crop 44x30+"$label_at" "$SHOTS/$1.png"; }
label_at=$(printf 'boot\nget lblCurrentTrack(0) screen\n' | "$GAME/pagodas-console" "$WORK/plain" |
    awk 'NR == 2 { print int($1) "+" int($2) }')
leave() {
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=
}
# wait_for_track NUMBER: ten seconds at most
wait_for_track() {
    for _ in $(seq 100); do
        [ "$(playing)" != "$1" ] || return 0
        sleep 0.1
    done
    fail "track $1 does not play, but '$(playing)'"
}

# Two tracks of two seconds to their ends; the third stays. The start leaves CurrentTrack on the track
# after its own, and every end moves it on by one: after 1 comes 3.
tone 2 01 03
settings 1
"$WORK/game/pagodas" 2>"$WORK/errors" &
program=$!
begun=$(date +%s%N)
wait_for_track 01
wait_for_track 03
wait_for_track 04
took=$((($(date +%s%N) - begun) / 1000000))
echo "the third track began after $took ms"
# the logo's second and two tracks of 2 seconds
[ "$took" -gt 4500 ] || fail "the tracks raced by"
sleep 2
[ "$(playing)" = 04 ] || fail "the third track did not stay, but '$(playing)'"
label music-third

# A skip moves on by one and stays there.
press lblSkipTrack
wait_for_track 05
sleep 2
[ "$(playing)" = 05 ] || fail "a skip ran on to '$(playing)'"
before=$(cpu)
sleep 5
echo "five seconds of music took $(($(cpu) - before)) ms"
leave

# The label named the third: it looks as at a start with that track.
settings 4
start_game
[ "$(playing)" = 04 ] || fail "track 4 does not play"
label music-start-at-four
leave
difference=$(compare -metric AE "$SHOTS/music-third.png" "$SHOTS/music-start-at-four.png" null: 2>&1 || true)
[ "$difference" = 0 ] || fail "the label did not name track 4 ($difference pixels)"

# Thirty tracks that are missing, broken or over at once: silence, and no race through them.
silent() {
    settings 1
    start_game
    before=$(cpu)
    changes=0
    label "music-$1"
    for _ in 1 2 3 4 5; do
        mv "$SHOTS/music-$1.png" "$WORK/label.png"
        sleep 1
        label "music-$1"
        compare -metric AE "$WORK/label.png" "$SHOTS/music-$1.png" null: 2>/dev/null || changes=$((changes + 1))
    done
    spent=$(($(cpu) - before))
    echo "$1: five seconds took $spent ms, the label changed $changes times"
    [ "$spent" -lt 50 ] || fail "$1: the silence takes the processor"
    [ "$changes" -le 1 ] || fail "$1: the tracks race by" # each stands for ten seconds
    [ ! -s "$WORK/errors" ] || fail "$1: there was a message: $(cat "$WORK/errors")"
    press imgbutStart
    leave
}
all=$(seq -w 30)
for number in $all; do rm -f "$TRACKS/MS00$number"; done
silent missing
for number in $all; do head -c 3000 "$GAME/DATA/TS0001" >"$TRACKS/MS00$number"; done
silent broken
# shellcheck disable=SC2086
tone 0.02 $all
silent over-at-once
echo "music plays on"
