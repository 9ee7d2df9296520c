#!/bin/sh
# measure_screens.sh GAMEDIR [RUNS]: what opening and closing every screen costs in the real window,
# with 1200 players in the tables: CPU milliseconds from the press to the last painted pixel, as the
# median of several runs. Prints a table; demands nothing.
GAME=$1
RUNS=${2:-3}
. "$(dirname "$0")/window.sh"
. "$(dirname "$0")/cpu.sh"
sh "$(dirname "$0")/full_records.sh" "$WORK/game" "$GAME"
# Ten players who hold all 1200 entries between them, in Wisdom.
{
    echo boot
    for layout in $(seq 120); do
        for place in $(seq 10); do
            printf 'set ScoreTable(3,%d,%d).Name "player %d"\n' "$layout" "$place" $(((layout + place) % 10 + 1))
        done
    done
    for box in $(seq 12); do printf 'set PlayerNames(3,%d) "player %d"\n' "$box" $((box % 10 + 1)); done
    printf 'call SaveScores\ncall SaveSettings\n'
} | "$GAME/pagodas-console" "$WORK/game" | grep -vx ok && fail "the records were not written"
open_display 1024x768
use_window_manager

# Places first: asking the console takes time of its own. Name, button, name, button ...
place() {
    while [ $# -gt 0 ]; do
        middle_of "$2" >"$WORK/at.$1"
        shift 2
    done
}
at() { cat "$WORK/at.$1"; }
place menu imgButMenu options imgMenuOptions options-closed imgButOptionsCancel \
    scores imgMenuScores scores-closed imgOKScores history imgMenuHistory \
    history-closed imgHisCancel profile imgMenuProfile profile-closed imgProCancel \
    help imgMenuHelp help-closed imgBackToGame leave imgExit leave-closed imgExitNO \
    wisdom 'lblGameTypeProfile(2)' graph 'imgGraphType(1)' chooser imgButLayout \
    set-turn imgLaySetUP random-page imgButRandomLayout chooser-closed imgRandomOk

for run in $(seq "$RUNS"); do
    start_game
    for screen in options scores history profile help leave; do
        note menu "$(click_at "$(at menu)")"
        note "$screen" "$(click_at "$(at "$screen")")"
        if [ "$screen" = profile ]; then
            note wisdom "$(click_at "$(at wisdom)")"
            note graph "$(click_at "$(at graph)")"
        fi
        note "$screen-closed" "$(click_at "$(at "$screen-closed")")"
    done
    for step in chooser set-turn random-page chooser-closed; do
        note "$step" "$(click_at "$(at "$step")")"
    done
    kill "$program"
    wait "$program" 2>/dev/null || true
    program=
done
table menu options scores history profile wisdom graph help leave chooser set-turn random-page \
    options-closed scores-closed history-closed profile-closed help-closed leave-closed chooser-closed
