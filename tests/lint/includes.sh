#!/bin/sh
# includes.sh: Qt and SDL belong to desktop/ alone, the rules know no front end, and the headers of
# frame/ know nothing of the other folders. Run at the root of the sources.
rules="frame board words records screens media"
bad=0
# must_not PATTERN WHY PLACE...
must_not() {
    pattern=$1 why=$2
    shift 2
    if grep -rnE "#include *[<\"]($pattern)" "$@"; then
        echo "$why"
        bad=1
    fi
}
# shellcheck disable=SC2086
must_not 'Q|SDL' 'Qt and SDL belong to desktop/' $rules console
# shellcheck disable=SC2086
must_not 'desktop/|console/|content/|tests/' 'a rule knows no front end, maker or test' $rules
must_not 'board/|words/|records/|screens/|media/' 'the headers of frame/ include frame/ alone' frame/*.h
must_not 'console/|content/|tests/' 'desktop/ stands on the rules alone' desktop
exit $bad
