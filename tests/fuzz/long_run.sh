#!/bin/sh
# long_run.sh [SECONDS [FORMAT...]]: each fuzzer for so long (600), one after the other, or those of
# the named formats. Each goes on from the corpus that it found before, build/fuzz/corpus/FORMAT.
# The input of a finding stands in build/fuzz/found/; "build/fuzz/tests/fuzz/FORMAT-fuzzer FILE"
# plays it again.
set -eu
cd "$(dirname "$0")/../.."
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
seconds=${1:-600}
[ $# -eq 0 ] || shift
[ $# -gt 0 ] || set -- $(ls build/fuzz/tests/fuzz/*-fuzzer | sed 's|.*/||; s|-fuzzer||')
mkdir -p build/fuzz/found
for format in "$@"; do
    corpus=build/fuzz/corpus/$format
    mkdir -p "$corpus"
    echo "== $format"
    "build/fuzz/tests/fuzz/$format-fuzzer" "$corpus" -max_total_time="$seconds" -timeout=20 \
        -print_final_stats=1 -artifact_prefix="build/fuzz/found/$format-" \
        >"build/fuzz/$format.log" 2>&1 || echo "FOUND something: see build/fuzz/$format.log"
    grep -E 'INITED|DONE|stat::number_of|stat::average|FOUND|SUMMARY' "build/fuzz/$format.log"
done
