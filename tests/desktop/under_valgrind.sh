#!/bin/sh
# under_valgrind.sh GAMEDIR BOT REPORT VALGRIND-OPTION...: a start of the real program, one whole game
# by bot, the score table and the way out, all under valgrind. Run by hand, it takes many minutes:
#   under_valgrind.sh build/game build/release/tests/desktop/window-bot memcheck.txt --leak-check=full
#   under_valgrind.sh build/game build/release/tests/desktop/window-bot massif.txt --tool=massif
GAME=$1 BOT=$2 REPORT=$3
shift 3
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager

# Nothing happens when the program has slept through three seconds.
wait_until_idle() {
    calm=0
    while [ "$calm" -lt 30 ]; do
        case $(ps -o stat= -p "$program") in
        S*) calm=$((calm + 1)) ;;
        '') fail "the game ended: $(tail -5 "$REPORT")" ;;
        *) calm=0 ;;
        esac
        sleep 0.1
    done
}
press_and_wait() {
    press "$1"
    wait_until_idle
}

offset=$(printf 'boot\nstate LayoutOffset(19)\n' | "$GAME/pagodas-console" "$WORK/plain" | tail -1 | tr -d '"')
valgrind --child-silent-after-fork=yes --log-file="$REPORT" "$@" "$WORK/game/pagodas" &
program=$!
sleep 10
wait_until_idle
sleep 6 # the title stands for four seconds
wait_until_idle
shot valgrind-idle
press_and_wait imgbutStart
shot valgrind-board
left=$("$BOT" "$GAME" "$(echo "$offset" | cut -c1-2 | sed 's/^0//')" \
    "$(echo "$offset" | cut -c3-4 | sed 's/^0//')" 20)
wait_until_idle
echo "tiles left: $left"
xdotool type 'Window Bot'
xdotool key Return
wait_until_idle
shot valgrind-scores
press_and_wait imgOKScores
press_and_wait imgButMenu
press_and_wait imgExit
press imgExitYES
wait "$program" || fail "the game ended with status $?"
program=
grep -E 'ERROR SUMMARY|definitely lost|indirectly lost|possibly lost|in use at exit' "$REPORT" || true
