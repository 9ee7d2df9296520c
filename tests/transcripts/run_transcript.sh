#!/bin/sh
# run_transcript.sh CONSOLE GAMEDIR TRANSCRIPT
#
# Plays a transcript through the console in a fresh game directory and names the first line that
# differs. A transcript reads as a story:
#
#   # a remark
#   ! a shell command, run in the game directory before the console starts (to damage a file)
#   > a command of the console
#   its answer, one line; a single - stands for an empty one
#   === starts the game a second time in the same directory
#   exit N is the status that the console must end with, at the end of a run (without it 0)
set -eu
console=$(realpath "$1") game=$(realpath "$2") transcript=$3

work=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d) # in memory where that can be: a thousand links
trap 'rm -rf "$work"' EXIT
for folder in DATA PHOT; do
    mkdir -p "$work/game/$folder"
    [ ! -d "$game/$folder" ] || cp -rs "$game/$folder/." "$work/game/$folder"
done

# One file a run of the console: its shell commands, its commands, its answers with line numbers.
awk -v work="$work" '
    BEGIN { run = 1; status = 0 }
    /^===/ { print status > (work "/status." run); run++; status = 0; next }
    /^exit / { status = $2; next }
    /^! / { print substr($0, 3) > (work "/shell." run); next }
    /^> / { print substr($0, 3) > (work "/commands." run); command = substr($0, 3); asked = 1; next }
    /^#/ || (/^$/) { next }
    { if (!asked) { print FILENAME ":" FNR ": an answer without a command"; exit 1 }
      print FNR "\t" command "\t" ($0 == "-" ? "" : $0) > (work "/answers." run); asked = 0 }
    END { print status > (work "/status." run); print run > (work "/runs") }
' "$transcript"

for run in $(seq "$(cat "$work/runs")"); do
    if [ -f "$work/shell.$run" ]; then (cd "$work/game" && sh -e "$work/shell.$run"); fi
    touch "$work/commands.$run" "$work/answers.$run"
    status=0
    "$console" "$work/game" <"$work/commands.$run" >"$work/got.$run" || status=$?
    awk -F '\t' -v transcript="$transcript" -v got="$work/got.$run" '
        { if ((getline line < got) <= 0) line = "(no answer)"
          if (line != $3) {
              print transcript ":" $1 ": differs"
              print "  command:  " $2
              print "  expected: " $3
              print "  got:      " line
              exit 1 } }
    ' "$work/answers.$run"
    wanted=$(cat "$work/status.$run")
    if [ "$status" != "$wanted" ]; then
        echo "$transcript: run $run ended with status $status, expected $wanted"
        exit 1
    fi
done
