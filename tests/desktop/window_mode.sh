#!/bin/sh
# window_mode.sh GAMEDIR: from full screen to a window, its moves by keys, away and back in both modes,
# and to full screen again, with a window manager on a large desktop.
GAME=$1
. "$(dirname "$0")/window.sh"
open_display 1920x1080
use_window_manager

# Agility: its clock tells whether the game goes on.
printf '\0\0\0\0\0\0\0\0\0\0\2\0' >"$WORK/game/Settings.dat"
full_screen() { SCALE=1.40625 ORIGIN_X=240 ORIGIN_Y=0; } # 1080 / 768; (1920 - 1440) / 2
window() { SCALE=1 ORIGIN_X=$1 ORIGIN_Y=$2; }
# place: "X Y WIDTH HEIGHT" of the window without its frame; nothing while it is away
place() {
    xdotool search --onlyvisible --name '^Pagodas$' 2>/dev/null | grep -qx "$id" || return 0
    xdotool getwindowgeometry --shell "$id" |
        sed -n 's/^\(X\|Y\|WIDTH\|HEIGHT\)=//p' | tr '\n' ' ' | sed 's/ $//'
}
# soon COMMAND...: it comes true within five seconds
soon() {
    for _ in $(seq 50); do
        if "$@"; then return 0; fi
        sleep 0.1
    done
    return 1
}
stands_at() { [ "$(place)" = "$1" ]; }
place_is() { soon stands_at "$1" || fail "wanted $1, stands at '$(place)'"; }
awake() { # how often the game woke up in three seconds
    before=$(cut -d ' ' -f 3 /proc/"$program"/schedstat)
    sleep 3
    echo "$(($(cut -d ' ' -f 3 /proc/"$program"/schedstat) - before))"
}
runs() { [ "$(awake)" -ge 25 ]; }
goes_on() { soon runs || fail "the clock does not run $1"; }
away_and_back() {
    press lblMinimize
    place_is ''
    [ "$(awake)" -le 10 ] || fail "the clock runs while the game is away ($1)"
    xdotool windowactivate "$id"
    goes_on "after the restore ($1)"
}

start_game
id=$(xdotool search --onlyvisible --name '^Pagodas$')
full_screen
place_is '0 0 1920 1080'
press imgbutStart
goes_on "after the start"
away_and_back "full screen"
place_is '0 0 1920 1080'

press 'imgWindowMode(0)'
shot window-mode
x=$(place | cut -d ' ' -f 1)
y=$(place | cut -d ' ' -f 2)
place_is "$x $y 1024 768"
# The frame stands at (1920 - 1024) / 2 and (1080 - 768) / 2; xdotool counts its width twice.
if [ "$x" -lt 448 ] || [ "$x" -gt 460 ] || [ "$y" -lt 156 ] || [ "$y" -gt 216 ]; then
    fail "the window is not in the middle but at $x, $y"
fi
frame_x=$(((x - 448) / 2))
frame_y=$(((y - 156) / 2))
window $((448 + frame_x)) $((156 + frame_y))
goes_on "in the window"
for key in Up Left Left Down Down; do xdotool key shift+$key; done
place_is "$((x - 20)) $((y + 10)) 1024 768"
window $((428 + frame_x)) $((166 + frame_y))
away_and_back "window"
place_is "$((x - 20)) $((y + 10)) 1024 768"

press 'imgWindowMode(1)'
place_is '0 0 1920 1080'
full_screen
press lblCloseGame
wait_for_end
[ "$(od -An -td2 -N2 "$WORK/game/Settings.dat" | tr -d ' ')" = 0 ] || fail "the mode was not saved"
echo "window and full screen, away and back"
