#!/bin/sh
# wayland.sh GAMEDIR: full screen, window, minimise and restore under Wayland, as far as a program has
# a say there. Skips (status 77) where the compositor weston or Qt's Wayland plugin is missing.
for package in weston qt6-wayland; do
    dpkg-query -W -f '${Status}' $package 2>/dev/null | grep -q 'ok installed' || {
        echo "skipped: the package $package is not installed"
        exit 77
    }
done
GAME=$1
. "$(dirname "$0")/window.sh"

# The compositor shows its output in a window that fills the virtual display.
open_display 1280x960
weston --backend=x11-backend.so --width=1280 --height=960 --socket=pagodas --use-pixman --idle-time=0 \
    --log="$WORK/weston.log" >/dev/null 2>&1 &
window_manager=$!
for _ in $(seq 50); do
    [ ! -S "$XDG_RUNTIME_DIR/pagodas" ] || break
    sleep 0.1
done
export QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=pagodas WAYLAND_DEBUG=1
SCALE=1.25
CALM=20 # the compositor draws by a timer of its own

asked() { grep -q -- "-> xdg_toplevel@[0-9]*\.$1(" "$WORK/errors" || fail "the window was not asked to $1"; }
# How often the game woke up in three seconds: some thirty times and more while its clock runs.
awake() {
    before=$(cut -d ' ' -f 3 /proc/"$program"/schedstat)
    sleep 3
    echo "$(($(cut -d ' ' -f 3 /proc/"$program"/schedstat) - before))"
}
colour_at() { convert "$SHOTS/$1.png" -format "%[pixel:p{$2,$3}]" info:; }

# Agility: its clock tells whether the game goes on.
printf '\0\0\0\0\0\0\0\0\0\0\2\0' >"$WORK/game/Settings.dat"
start_game
sleep 2 # the compositor starts at the same time
asked set_fullscreen
shot wayland-idle
press imgbutStart
shot wayland-dealt
difference=$(compare -metric AE -fuzz 5% "$SHOTS/wayland-idle.png" "$SHOTS/wayland-dealt.png" null: 2>&1 || true)
awk -v d="$difference" 'BEGIN { exit !(d > 50000) }' || fail "no board was dealt"
times=$(awake)
[ "$times" -ge 25 ] || fail "the clock does not run ($times times awake)"

press lblMinimize
sleep 1
asked set_minimized
times=$(awake)
[ "$times" -le 10 ] || fail "the clock runs while the game is away ($times times awake)"
xdotool key super+Tab
sleep 1
times=$(awake)
[ "$times" -ge 25 ] || fail "the clock did not go on ($times times awake)"

press 'imgWindowMode(0)'
sleep 1
asked unset_fullscreen
shot wayland-window
[ "$(colour_at wayland-window 1270 950)" != "$(colour_at wayland-dealt 1270 950)" ] ||
    fail "the window fills the display"
[ "$(od -An -td2 -N2 "$WORK/game/Settings.dat" | tr -d ' ')" = 1 ] || fail "the mode was not saved"
kill "$program"
wait "$program" 2>/dev/null || true
program=
echo "Wayland shows the game"
