#!/bin/sh
# under_valgrind.sh GAMEDIR BOT REPORT VALGRIND-OPTION...: a start of the real program, one whole game
# by bot, the score table and the way out, all under valgrind. Run by hand, it takes many minutes:
#   under_valgrind.sh build/game build/release/tests/desktop/window-bot memcheck.txt --leak-check=full
#   under_valgrind.sh build/game build/release/tests/desktop/window-bot massif.txt --tool=massif
GAME=$1 BOT=$2 REPORT=$3
shift 3
. "$(dirname "$0")/window.sh"
PATIENCE=20
open_display 1024x768
use_window_manager

offset=$(printf 'boot\nstate LayoutOffset(19)\n' | "$GAME/pagodas-console" "$WORK/plain" | tail -1 | tr -d '"')
start_game valgrind --child-silent-after-fork=yes --log-file="$REPORT" "$@" "$WORK/game/pagodas"
shot valgrind-idle
press imgbutStart
shot valgrind-board
left=$("$BOT" "$GAME" "$(echo "$offset" | cut -c1-2 | sed 's/^0//')" \
    "$(echo "$offset" | cut -c3-4 | sed 's/^0//')" 20)
echo "tiles left: $left"
xdotool type 'Window Bot'
xdotool key Return
shot valgrind-scores
press imgOKScores
press imgButMenu
press imgExit
press imgExitYES
wait_for_end
grep -E 'ERROR SUMMARY|definitely lost|indirectly lost|possibly lost|in use at exit' "$REPORT" || true
