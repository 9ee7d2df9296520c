#!/bin/sh
# first_settings.sh GAMEDIR: a player who never played begins with music and help balloons on. The game
# reads a short Settings.dat as zeros from its end on, and puts its defaults where it finds zeros.
set -eu
[ -e "$1/Settings.dat" ] || printf '\0\0\0\0\0\0\0\0\0\0\0\0\1\0\0\0\1\0' >"$1/Settings.dat" # at 12 and 16
