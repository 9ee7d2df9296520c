#!/bin/sh
# unless_unchanged.sh PROGRAM FOLDER...: runs a test of made files, unless it has passed and neither
# its program nor a file in the folders has changed since.
set -eu
program=$1
shift
passed=$program.passed
if [ -f "$passed" ] && [ -z "$(find "$program" "$@" -newer "$passed" -print -quit)" ]; then
    echo "nothing has changed since it passed"
    exit 0
fi
rm -f "$passed"
touch "$passed.begun" # what changes during the run counts
"$program"
mv "$passed.begun" "$passed"
