# window.sh: the real program in a virtual display. Read by the desktop tests, not run.
#
# needs: GAME, the made game directory. Gives: WORK, a fresh game directory with the program; a
# display of its own; functions to start, press, look and stop. Screenshots stay in SHOTS.

set -eu
export QT_QPA_PLATFORM=xcb SDL_AUDIODRIVER=dummy LC_ALL=C
SHOTS=${SHOTS:-$PWD/desktop-shots}
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
    for _ in $(seq 50); do
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

shot() { import -window root "$SHOTS/$1.png"; }

# start_game: returns when the main screen stands.
start_game() {
    "$WORK/game/pagodas" 2>"$WORK/errors" &
    program=$!
    sleep 5.5
    kill -0 "$program" 2>/dev/null || fail "the game did not stay up: $(cat "$WORK/errors")"
    sleep 0.5
}

# wait_for_end: the program must end by itself with status 0.
wait_for_end() {
    for _ in $(seq 50); do
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

press() {
    # shellcheck disable=SC2046
    point_at $(middle_of "$1")
    sleep 0.1
    xdotool click 1
    sleep 0.4
}
