#!/bin/sh
# installed.sh GAMEDIR WINDOW-BOT BUILD: the installed game gives a player a game directory of their
# own, with music on, and a second start keeps what the player put there.
GAME=$1
BUILD=$3
. "$(dirname "$0")/window.sh"
open_display 1024x768
use_window_manager
cmake --install "$BUILD" --prefix "$WORK/usr" >/dev/null || fail "the game was not installed"
export XDG_DATA_HOME="$WORK/home"
own="$WORK/home/pagodas"

start_game "$WORK/usr/games/pagodas"
shot installed
[ "$(od -An -tu1 -j12 -N1 "$own/Settings.dat" | tr -d ' ')" = 1 ] || fail "music is not on"
[ -r "$own/DATA/TS0001" ] || fail "the player's DATA lacks the tile sets"
kill "$program"
wait "$program" 2>/dev/null || true

echo mine >"$own/DATA/XP0001x"                      # what a player adds
rm "$own/DATA/BD0001"
echo old >"$own/pagodas"                            # a program of an older version
start_game "$WORK/usr/games/pagodas"
[ "$(cat "$own/DATA/XP0001x")" = mine ] || fail "a file of the player was lost"
[ -r "$own/DATA/BD0001" ] || fail "a lost backdrop did not come back"
cmp -s "$own/pagodas" "$WORK/usr/lib/pagodas/pagodas" || fail "an old program was kept"
echo "the installed game went well"
