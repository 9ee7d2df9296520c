#!/bin/sh
# maker_faults.sh MAKER SOURCES GAMEDIR: a fault in a source is named with file, line and rule, and then
# nothing is written; without a fault a second run writes the bytes that the game has.
set -eu
maker=$1 sources=$2 game=$3
export QT_QPA_PLATFORM=offscreen
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mkdir "$work/second" "$work/sources" "$work/broken"
"$maker" "$work/second" "$sources" 2>/dev/null
for file in $(cd "$work/second" && find . -type f); do cmp "$game/$file" "$work/second/$file"; done
[ "$(ls "$work/second/DATA" | wc -l)" -eq 34 ] || { echo "not 34 files"; exit 1; }

cp "$sources"/list_*.txt "$work/sources"
line=$(grep -n '^|' "$work/sources/list_b_144.txt" | head -n 1 | cut -d: -f1)
sed -i "${line}s/.*/|12/" "$work/sources/list_b_144.txt"
if "$maker" "$work/broken" "$work/sources" 2>"$work/faults"; then
    echo "a broken source was taken"
    exit 1
fi
grep "list_b_144.txt:$line: a stack is its height written twice" "$work/faults"
[ -z "$(ls "$work/broken")" ] || { echo "something was written"; exit 1; }
