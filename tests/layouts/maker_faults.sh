#!/bin/sh
# maker_faults.sh MAKER SOURCES: a fault in a source is named with file, line and rule, and then
# nothing is written; without a fault two runs write the same bytes.
set -eu
maker=$1 sources=$2
export QT_QPA_PLATFORM=offscreen
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mkdir "$work/first" "$work/second" "$work/sources" "$work/broken"
"$maker" "$work/first" "$sources" 2>/dev/null
"$maker" "$work/second" "$sources" 2>/dev/null
diff -r "$work/first" "$work/second"
[ "$(ls "$work/first/DATA" | wc -l)" -eq 34 ] || { echo "not 34 files"; exit 1; }

cp "$sources"/list_*.txt "$work/sources"
line=$(grep -n '^|' "$work/sources/list_b_144.txt" | head -n 1 | cut -d: -f1)
sed -i "${line}s/.*/|12/" "$work/sources/list_b_144.txt"
if "$maker" "$work/broken" "$work/sources" 2>"$work/faults"; then
    echo "a broken source was taken"
    exit 1
fi
grep "list_b_144.txt:$line: a stack is its height written twice" "$work/faults"
[ -z "$(ls "$work/broken")" ] || { echo "something was written"; exit 1; }
