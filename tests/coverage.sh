#!/bin/sh
# coverage.sh: how much of the rules and of the console the unit tests, the transcripts, some whole
# games and a short monkey run. Fails under 95 % of lines or 85 % of branches. The report stays in
# build/coverage: report.txt, and report.html with every line.
#
# Branches that only an exception takes are left out (the game throws none; they stand behind every
# std::string), and so are those that the compiler made and no path reaches.
set -eu
cd "$(dirname "$0")/.."
report=build/coverage
mkdir -p "$report"
folders="frame board words records screens media console"
# The same sources give the same figures.
if [ -f "$report/passed" ] && [ -z "$(find $folders tests CMakeLists.txt -newer "$report/passed" -type f)" ]; then
    echo "nothing has changed since it was:"
    cat "$report/passed"
    exit 0
fi
rm -f "$report/passed"
cmake --preset coverage "$@" >"$report/configure.log" 2>&1 || { cat "$report/configure.log"; exit 1; }
cmake --build --preset coverage --target unit-tests pagodas-console bots monkey >"$report/build.log" ||
    { tail -40 "$report/build.log"; exit 1; }
find "$report" -name '*.gcda' -delete
ctest --test-dir "$report" -j2 -L 'unit|transcript|bots' --output-on-failure >"$report/tests.log" 2>&1 ||
    { tail -40 "$report/tests.log"; exit 1; }
gcovr --root . -j2 --filter "($(echo $folders | tr ' ' '|'))/" "$report" \
    --exclude-throw-branches --exclude-unreachable-branches --sort-percentage \
    --html-details "$report/report.html" --txt "$report/report.txt" --print-summary \
    --fail-under-line 95 --fail-under-branch 85 >"$report/figures" ||
    { cat "$report/figures"; exit 1; }
tail -2 "$report/figures" | tee "$report/passed"
