# window.sh: the real program in a virtual display. Read by the desktop tests, not run.
#
# needs: GAME, the made game directory. Gives: WORK, a fresh game directory with the program; a
# display of its own; functions to start, press, look and stop. Screenshots stay in SHOTS.

set -eu
export QT_QPA_PLATFORM=xcb SDL_AUDIODRIVER=dummy LC_ALL=C
SHOTS=${SHOTS:-$PWD/desktop-shots}
PATIENCE=1 # 1: half a minute for a start, a press, an end
CALM=4     # twentieths of a second without work: what was asked is done
mkdir -p "$SHOTS"
WORK=$(mktemp -d)
export XDG_RUNTIME_DIR="$WORK/run"
mkdir -m 700 "$XDG_RUNTIME_DIR"
server=
program=
window_manager=

stop_all() {
    [ -z "$program" ] || kill "$program" 2>/dev/null || true
    [ -z "$window_manager" ] || kill "$window_manager" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    rm -rf "$WORK"
}
trap stop_all EXIT
trap 'exit 1' INT TERM

fail() {
    echo "FAILED: $*"
    exit 1
}

mkdir "$WORK/game"
cp "$GAME/pagodas" "$WORK/game/"
for folder in DATA PHOT ICON; do
    [ ! -d "$GAME/$folder" ] || ln -s "$(realpath "$GAME/$folder")" "$WORK/game/$folder"
done

# open_display WIDTHxHEIGHT: picks a free display number.
open_display() {
    rm -f "$WORK/display"
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$WORK/display" 2>/dev/null &
    server=$!
    for _ in $(seq 300); do
        [ ! -s "$WORK/display" ] || break
        sleep 0.1
    done
    [ -s "$WORK/display" ] || fail "no virtual display"
    DISPLAY=:$(cat "$WORK/display")
    export DISPLAY
}

use_window_manager() {
    openbox --sm-disable >/dev/null 2>&1 &
    window_manager=$!
    sleep 0.5
}

# settle: the game has done what it was asked: it, its display and the window manager sleep through
# CALM. However busy the machine is, what waits for a processor does not count as asleep.
settle() {
    calm=0
    for _ in $(seq $((600 * PATIENCE))); do
        states=
        for process in $program $server $window_manager; do
            state=Z # it has ended
            read -r _ _ state _ 2>/dev/null <"/proc/$process/stat" || true
            states=$states$state
        done
        case $states in
        Z*) return 0 ;;
        *[!S]*) calm=0 ;;
        *) calm=$((calm + 1)) ;;
        esac
        [ "$calm" -lt "$CALM" ] || return 0
        sleep 0.05
    done
    fail "the game does not come to rest"
}

shot() {
    settle
    import -window root -define png:compression-level=1 "$SHOTS/$1.png" # packing takes its time
}

# start_game [COMMAND...]: returns when the main screen stands. The logo and the title sleep through
# five seconds; what a busy machine adds to them is no sleep.
start_game() {
    [ $# != 0 ] || set -- "$WORK/game/pagodas"
    "$@" 2>"$WORK/errors" &
    program=$!
    asleep=0
    for _ in $(seq $((600 * PATIENCE))); do
        kill -0 "$program" 2>/dev/null || fail "the game did not stay up: $(cat "$WORK/errors")"
        read -r _ _ game _ <"/proc/$program/stat"
        [ "$game" != S ] || asleep=$((asleep + 1))
        [ "$asleep" -lt 54 ] || break
        sleep 0.1
    done
    [ "$asleep" = 54 ] || fail "the game did not come up"
    settle
}

# wait_for_end: the program must end by itself with status 0.
wait_for_end() {
    for _ in $(seq $((300 * PATIENCE))); do
        kill -0 "$program" 2>/dev/null || break
        sleep 0.1
    done
    if kill -0 "$program" 2>/dev/null; then fail "the game did not end"; fi
    wait "$program" || fail "the game ended with status $?: $(cat "$WORK/errors")"
    program=
}

# Elements by their design places, as the console tells them.
middle_of() {
    printf 'boot\nget %s screen\nget %s width\nget %s height\n' "$1" "$1" "$1" |
        "$GAME/pagodas-console" "$WORK/plain" |
        awk 'NR == 2 { x = $1; y = $2 } NR == 3 { w = $1 } NR == 4 { printf "%d %d\n", x + w / 2, y + $1 / 2 }'
}
mkdir "$WORK/plain"
ln -s "$(realpath "$GAME/DATA")" "$WORK/plain/DATA"

ORIGIN_X=0
ORIGIN_Y=0
SCALE=1   # screen pixels for one pixel of the game

point_at() {
    set -- $(awk -v x="$1" -v y="$2" -v s="$SCALE" -v ox="$ORIGIN_X" -v oy="$ORIGIN_Y" \
        'BEGIN { printf "%d %d\n", x * s + ox, y * s + oy }')
    xdotool mousemove "$1" "$2"
}

# The button is let go when the press has arrived: of a click that takes no time, a window manager that
# looks at the press first may lose the release.
press() {
    # shellcheck disable=SC2046
    point_at $(middle_of "$1")
    settle
    xdotool mousedown 1
    settle
    xdotool mouseup 1
    settle
}
