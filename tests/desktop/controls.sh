#!/bin/sh
# controls.sh GAMEDIR: the list boxes of the profile in the real window, by pointer, wheel and keys,
# with 1200 players. What was chosen is read from the settings that the way out saves.
GAME=$1
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager
sh "$(dirname "$0")/full_records.sh" "$WORK/game" "$GAME"
# Nobody is chosen at first.
{
    echo boot
    for type in 1 2 3; do
        for box in $(seq 12); do printf 'set PlayerNames(%d,%d) ""\n' "$type" "$box"; done
    done
    printf 'call SaveSettings\nput picProfile visible 1\ncall BuildPlayerList\nget cboPlayerList(1) items\n'
} | "$GAME/pagodas-console" "$WORK/game" | tail -1 | tr -d '"' | tr ' ' '\n' >"$WORK/names"
name() { sed -n "$1p" "$WORK/names"; } # the N-th of the list
[ "$(wc -l <"$WORK/names")" -gt 1200 ] || fail "the list of players is short"

keys() {
    for key; do xdotool key "$key"; settle; done
}
# changed A B: the number of pixels that differ between two screenshots
changed() {
    compare -metric AE -fuzz 3% "$SHOTS/$1.png" "$SHOTS/$2.png" null: 2>&1 || true
}

start_game
press imgButMenu
press imgMenuProfile
xdotool mousemove 5 600
shot controls-profile

# Box 1: dropped down by the pointer; the list scrolls with the wheel; Escape leaves it as it was.
press "cboPlayerList(1)"
shot controls-dropped
[ "$(changed controls-profile controls-dropped)" -gt 5000 ] || fail "the list did not drop down"
# shellcheck disable=SC2046
xdotool mousemove $(middle_of "cboPlayerList(4)")
shot controls-dropped-pointer
xdotool click 5 click 5 click 5
shot controls-scrolled
[ "$(changed controls-dropped-pointer controls-scrolled)" -gt 2000 ] || fail "the list did not scroll"
keys Escape
xdotool mousemove 5 600
shot controls-escaped
[ "$(changed controls-profile controls-escaped)" -lt 3000 ] || fail "Escape did not close the list"

# Box 5: the wheel over the closed box chooses nothing.
# shellcheck disable=SC2046
xdotool mousemove $(middle_of "cboPlayerList(5)")
xdotool click 5
settle
xdotool click 5 click 5 click 5 click 4
settle
xdotool mousemove 5 600
shot controls-wheel
[ "$(changed controls-escaped controls-wheel)" -lt 3000 ] || fail "the wheel chose a name"
# Box 1, closed but with the keyboard, which the wheel over the other has left here: Down takes the
# first name.
keys Down
# The further buttons of a mouse, 8 and 9, press nothing: the profile stays.
# shellcheck disable=SC2046
xdotool mousemove $(middle_of imgProCancel) click 8 click 9
settle
# Box 1 again: the second name.
press "cboPlayerList(1)"
keys Escape Down
# Box 2: keys in the open list, Enter takes what is marked: Home, then three down.
press "cboPlayerList(2)"
keys Home Down Down Down Return
# Box 3: End is nobody, one up the last player of all.
press "cboPlayerList(3)"
keys End Up Return
# Box 4: type-ahead finds a name by its first letters.
press "cboPlayerList(4)"
xdotool type --delay 20 "$(name 700)"
shot controls-typed
keys Return
# Box 6: a list opened in the lower half, by keys again.
press "cboPlayerList(6)"
shot controls-sixth
keys Home Down Down Down Down Down Down Down Return
xdotool mousemove 5 600
shot controls-chosen

press imgProOK
press imgButMenu
press imgExit
press imgExitYES
wait_for_end
{
    echo boot
    for box in 1 2 3 4 5 6; do printf 'state PlayerNames(1,%d)\n' "$box"; done
} | "$GAME/pagodas-console" "$WORK/game" | sed 1d | tr -d '"' >"$WORK/chosen"
cat "$WORK/chosen"
expect() {
    got=$(sed -n "$1p" "$WORK/chosen")
    [ "$got" = "$2" ] || fail "box $1 holds $got, not $2"
}
expect 1 "$(name 2)"
expect 2 "$(name 4)"
expect 3 "$(name 1200)"
expect 4 "$(name 700)"
expect 5 ""
expect 6 "$(name 8)"
echo "the list boxes take pointer, wheel and keys"
