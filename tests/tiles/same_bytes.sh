#!/bin/sh
# same_bytes.sh MADE-FILE MAKER ARGS...: runs "MAKER OUTDIR ARGS..." again; the same sources must give
# the bytes that stand in the game directory.
set -eu
made=$1 maker=$2
shift 2
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
QT_QPA_PLATFORM=offscreen "$maker" "$out" "$@" >/dev/null
cmp "$out/DATA/$(basename "$made")" "$made"
