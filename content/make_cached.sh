#!/bin/sh
# make_cached.sh NAME GAMEDIR STAMP SOURCES-LIST PACKAGES MAKER ARGS...
#
# Runs "MAKER OUTDIR ARGS..." and puts OUTDIR's files into GAMEDIR, or takes them from the user's
# cache folder when the same sources were made before. SOURCES-LIST is a file with the sources'
# paths, and PACKAGES the Debian packages read, both separated by semicolons.
set -eu
name=$1 game=$2 stamp=$3 list=$4 packages=$5 maker=$6
shift 6

cache=${XDG_CACHE_HOME:-$HOME/.cache}/pagodas
hash=$({
    echo "$name" "$@"
    tr ';' '\n' <"$list" | sed '/^$/d' | sort | while read -r file; do
        sha256sum <"$file"
    done
    for package in $(echo "$packages" | tr ';' ' '); do
        dpkg-query -W -f '${Package} ${Version}\n' "$package" 2>/dev/null || echo "$package none"
    done
} | sha256sum | cut -c1-32)
made=$cache/$name-$hash

if [ ! -d "$made" ]; then
    mkdir -p "$cache"
    work=$(mktemp -d "$cache/$name-XXXXXX")
    trap 'rm -rf "$work"' EXIT
    QT_QPA_PLATFORM=offscreen nice "$maker" "$work" "$@"
    # Only a finished result gets its name; the former one of this maker is no longer needed.
    find "$cache" -maxdepth 1 -name "$name-*" ! -path "$work" -mtime +14 -exec rm -rf {} +
    mv -T "$work" "$made" 2>/dev/null || [ -d "$made" ]
    trap - EXIT
    rm -rf "$work"
fi
mkdir -p "$game"
cp -R "$made/." "$game/"
touch "$stamp"
