#!/bin/sh
# screens.sh GAMEDIR: opens every screen and box in the real window, keeps a picture of each, and
# demands that each differs from the board and that the board is back unharmed after it. With
# RECORDS=full in the environment over the widest records that there can be.
GAME=$1
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager

if [ "${RECORDS:-}" = full ]; then
    sh "$(dirname "$0")/full_records.sh" "$WORK/game" "$GAME"
else
    # Records to look at: written by the game itself, through the console.
    {
        echo boot
        score=30000
        for layout in 19 1 5 14 40 77 100 109 120; do
            for name in 'Wwwwwwwwwwww' 'anna maria' 'li'; do
                score=$((score - 997))
                printf 'set LayoutNumber %d\nset Score %d\nset LastName "%s"\n' $layout $score "$name"
                printf 'call ScoreRankFor %d\ncall RecordGame 3 "%s" "1" %d %d\ncall InsertScore\n' $score "$name" $layout $score
            done
        done
        printf 'call SaveScores\nset LayoutNumber 19\nset LayoutWon(19) 7\nset LayoutLost(19) 4\ncall SaveWonLost\ncall SaveSettings\n'
    } | "$GAME/pagodas-console" "$WORK/game" >/dev/null
fi
shot_as() { shot "${RECORDS:-}${RECORDS:+-}$1"; }

start_game
press imgbutStart
xdotool mousemove 5 300
shot_as board
board=$SHOTS/${RECORDS:-}${RECORDS:+-}board.png

# look NAME: the picture differs from the board's in many places
look() {
    xdotool mousemove 3 300
    shot_as "$1"
    difference=$(compare -metric AE -fuzz 3% "$board" "$SHOTS/${RECORDS:-}${RECORDS:+-}$1.png" null: 2>&1 || true)
    awk -v d="$difference" 'BEGIN { exit !(d > 20000) }' || fail "$1 did not open"
}
board_is_back() {
    xdotool mousemove 5 300
    shot_as back
    difference=$(compare -metric AE -fuzz 3% "$board" "$SHOTS/${RECORDS:-}${RECORDS:+-}back.png" null: 2>&1 || true)
    awk -v d="$difference" 'BEGIN { exit !(d < 200) }' || fail "the board is not back after $1 ($difference pixels)"
}

press imgButMenu; look menu
press imgMenuScores; look scores
press imgButHistoryScores; look history
press imgHisProfile; look profile
press picGraph; shot_as profile-hover
press "lblGameTypeProfile(1)"; look profile-agility
press imgProOK; board_is_back profile
press imgButMenu; press imgMenuOptions; look options
press imgButOptionsCancel; board_is_back options
press imgButMenu; press imgMenuHelp; look help-1
for page in 2 3 4 5; do press "imgHelpBut($page)"; look "help-$page"; done
press imgBackToGame; board_is_back help
press imgButMenu; press imgExit; look leave
press imgExitNO; board_is_back leave
press imgButLayout; look end
press imgEndYES; look chooser
press imgLaySetDN; look chooser-other
press imgButRandomLayout; look chooser-random
press imgRandomOk
shot idle-random
kill "$program"
program=
echo "every screen opened and closed"
