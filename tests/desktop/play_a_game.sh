#!/bin/sh
# play_a_game.sh GAMEDIR BOT: a bot plays a whole game of Finesse in the real window with the pointer,
# to the last pair or a dead end. Its name is pasted, typed and composed in the name box. Then the game
# is left, and the next run finds what it recorded.
GAME=$1
BOT=$2
CLIPBOARD=$(dirname "$BOT")/hold-clipboard
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager

offset=$(printf 'boot\nstate LayoutOffset(19)\n' | "$GAME/pagodas-console" "$WORK/plain" | tail -1 | tr -d '"')
add_x=$(echo "$offset" | cut -c1-2 | sed 's/^0//')
add_y=$(echo "$offset" | cut -c3-4 | sed 's/^0//')

LC_ALL=C.UTF-8 start_game
press imgbutStart
left=$("$BOT" "$GAME" "$add_x" "$add_y")
echo "tiles left: $left"
[ "$left" -lt 144 ] || fail "the bot took no pair"

# The first score of all gets a place, won or lost: the name is typed into the window.
shot played-name
paste() { # TEXT from another program
    "$CLIPBOARD" "$1" &
    clipboard=$!
    sleep 1
    xdotool key ctrl+v
    settle
    kill "$clipboard"
}
# A paste of a page with control characters is one line of bounded length.
paste "$(printf 'A\tname\001 of\n\033[1m%0400d' 7)"
shot played-pasted
kill -0 "$program" || fail "the paste ended the game"
# Twelve of the widest letters fit the box.
xdotool key ctrl+a
xdotool type 'WWWWWWWWWWWW'
shot played-widest
# Nothing typed, nothing to press: the button is covered.
xdotool key ctrl+a BackSpace
shot played-empty
# An input method gives a letter that no key has; a control character becomes a blank.
xdotool type 'Jos'
xdotool key Multi_key apostrophe e
paste "$(printf '\001\tBot')"
shot played-typed
xdotool key Return
settle
xdotool mousemove 3 300
shot played-scores
press imgOKScores
shot played-idle
press imgButMenu
press imgExit
press imgExitYES
wait_for_end

# The next run, here without a window, finds the game: two points a pair and more.
{
    echo boot
    echo 'state History(1,3,1).Score'
    echo 'state ScoreTable(1,19,1).Name'
    echo 'state LayoutWon(19)'
    echo 'state LayoutLost(19)'
} | "$GAME/pagodas-console" "$WORK/game" | sed 1d >"$WORK/recorded"
cat "$WORK/recorded"
score=$(sed -n 1p "$WORK/recorded")
[ "$score" -ge $((144 - left)) ] || fail "the score $score is less than two a pair"
[ "$(sed -n 2p "$WORK/recorded")" = '"josé  bot"' ] || fail "the name is not in the table"
[ "$(($(sed -n 3p "$WORK/recorded") + $(sed -n 4p "$WORK/recorded")))" = 1 ] || fail "the game was not counted"

# The program itself shows the same score table when it is started again, and the settings stay.
cp "$WORK/game/Settings.dat" "$WORK/saved"
start_game
press imgButMenu
press imgMenuScores
xdotool mousemove 3 300
shot played-scores-again
press imgOKScores
press lblCloseGame
wait_for_end
# Only the row of the new entry was marked, by its colour and the dark strip under it.
row='rectangle 367,264 987,300'
for shot in played-scores played-scores-again; do
    convert "$SHOTS/$shot.png" -fill black -draw "$row" "$WORK/$shot.png"
done
difference=$(compare -metric AE -fuzz 3% "$WORK/played-scores.png" "$WORK/played-scores-again.png" null: 2>&1 || true)
awk -v d="$difference" 'BEGIN { exit !(d < 200) }' || fail "the second start shows another table ($difference pixels)"
# all but the place of the tune, bytes 30 and 31, which moves on at every start
{ head -c 30 "$WORK/game/Settings.dat"; tail -c +33 "$WORK/game/Settings.dat"; } >"$WORK/after"
{ head -c 30 "$WORK/saved"; tail -c +33 "$WORK/saved"; } >"$WORK/before"
cmp -s "$WORK/before" "$WORK/after" || fail "the settings did not stay"
echo "a whole game was played in the window"
