#!/bin/sh
# first_game.sh GAMEDIR: a first run on a display of the game's own size. Start deals a board whose
# tiles are where the state says; the way out saves; the second run finds what was saved.
GAME=$1
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager

start_game
shot first-idle
press imgbutStart
xdotool mousemove 5 300
shot first-dealt

# The places of a dealt "Bridges" do not depend on the shuffle.
{
    echo boot
    echo press imgbutStart
    for tile in $(seq 144); do printf 'get imgTile(%d) screen\n' "$tile"; done
} | "$GAME/pagodas-console" "$WORK/plain" | sed 1,2d >"$WORK/places"
[ "$(wc -l <"$WORK/places")" = 144 ] || fail "the console told no places"

# Changed pixels of the board: nearly all under the tiles' faces, none where no tile stands.
awk 'BEGIN { print "fill white" } { printf "rectangle %d,%d %d,%d\n", $1 + 9, $2 + 2, $1 + 57, $2 + 50 }' \
    "$WORK/places" >"$WORK/faces"
awk 'BEGIN { print "fill white" } { printf "rectangle %d,%d %d,%d\n", $1 - 1, $2 - 1, $1 + 61, $2 + 61 }' \
    "$WORK/places" >"$WORK/bodies"
convert "$SHOTS/first-idle.png" "$SHOTS/first-dealt.png" -compose difference -composite \
    -colorspace Gray -threshold 2% -crop 1024x610+0+0 +repage "$WORK/changed.png"
convert -size 1024x610 xc:black -draw "$(cat "$WORK/faces")" "$WORK/faces.png"
convert -size 1024x610 xc:black -draw "$(cat "$WORK/bodies")" "$WORK/bodies.png"
share() { convert "$@" -format '%[fx:mean]' info:; }
under=$(share "$WORK/changed.png" "$WORK/faces.png" -compose multiply -composite)
faces=$(share "$WORK/faces.png")
beside=$(share "$WORK/changed.png" \( "$WORK/bodies.png" -negate \) -compose multiply -composite)
echo "faces cover $faces of the board, changed under them $under, changed beside the tiles $beside"
awk -v u="$under" -v f="$faces" 'BEGIN { exit !(f > 0.1 && u > 0.9 * f) }' || fail "tiles are missing"
awk -v b="$beside" 'BEGIN { exit !(b < 0.0005) }' || fail "something changed where no tile stands"

press imgButMenu
shot first-menu
press imgExit
shot first-leave
press imgExitYES
wait_for_end
[ "$(stat -c %s "$WORK/game/Settings.dat")" = 508 ] || fail "Settings.dat was not saved"

# A second run, left by the desktop's close: it finds the settings and does not write them.
cp "$WORK/game/Settings.dat" "$WORK/saved"
start_game
shot second-idle
xdotool search --name "^Pagodas\$" windowactivate --sync
settle
xdotool key alt+F4 # the window manager asks the window to close
wait_for_end
cmp -s "$WORK/game/Settings.dat" "$WORK/saved" || fail "the desktop's close wrote the settings"
echo "the first game went well"
