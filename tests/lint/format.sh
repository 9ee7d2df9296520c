#!/bin/sh
# format.sh: every C++ file stands as .clang-format (version 14) would write it. Run at the root of
# the sources; "clang-format-14 -i FILE" mends a file.
find frame board words records screens media console desktop content tests -name '*.cpp' \
    -o -name '*.h' | xargs clang-format-14 --dry-run -Werror
