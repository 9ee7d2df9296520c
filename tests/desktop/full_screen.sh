#!/bin/sh
# full_screen.sh GAMEDIR: the picture fills displays of several shapes, with black bars, and the
# pointer is mapped back: a press at the scaled place of the start button deals.
GAME=$1
. "$(dirname "$0")/window.sh"

# colour_at X Y of a screenshot
colour_at() { convert "$SHOTS/$1.png" -format "%[pixel:p{$2,$3}]" info:; }

for display in 1280x1024 1920x1080; do
    rm -f "$WORK/game/Settings.dat"
    open_display "$display"
    use_window_manager
    width=${display%x*}
    height=${display#*x}
    SCALE=$(awk -v w="$width" -v h="$height" 'BEGIN { s = w / 1024; t = h / 768; print (s < t ? s : t) }')
    ORIGIN_X=$(awk -v w="$width" -v s="$SCALE" 'BEGIN { printf "%d", (w - 1024 * s) / 2 }')
    ORIGIN_Y=$(awk -v h="$height" -v s="$SCALE" 'BEGIN { printf "%d", (h - 768 * s) / 2 }')
    start_game
    shot "full-$display-idle"
    press imgbutStart
    shot "full-$display-dealt"
    if [ "$ORIGIN_X" -gt 2 ]; then edge="2 $((height / 2))"; else edge="$((width / 2)) 2"; fi
    # shellcheck disable=SC2086
    bar=$(colour_at "full-$display-dealt" $edge)
    case $bar in black | 'srgb(0,0,0)' | 'gray(0)') ;; *) fail "the bar beside the picture is $bar" ;; esac
    difference=$(compare -metric AE -fuzz 5% "$SHOTS/full-$display-idle.png" \
        "$SHOTS/full-$display-dealt.png" null: 2>&1 || true)
    awk -v d="$difference" 'BEGIN { exit !(d > 50000) }' || fail "no board was dealt on $display"
    kill "$program" "$window_manager" "$server"
    program= window_manager= server=
    sleep 0.5
done
echo "full screen fits"
