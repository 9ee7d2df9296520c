#!/bin/sh
# pagodas, as the Debian package installs it. The game keeps its records beside its program and looks
# for content packs in the DATA beside it, so every player gets a game directory of their own: the
# program, links to the common data, and what the player adds.
set -eu
root=$(dirname "$(dirname "$(readlink -f "$0")")")
own=${XDG_DATA_HOME:-$HOME/.local/share}/pagodas
mkdir -p "$own"
cmp -s "$root/lib/pagodas/pagodas" "$own/pagodas" || {
    cp "$root/lib/pagodas/pagodas" "$own/pagodas.new" # a running game keeps the program it has
    mv "$own/pagodas.new" "$own/pagodas"
}
# Links to what the package brought and is not there yet; what the player put there stays.
cp -rsn "$root/share/pagodas/." "$own/"
"$root/lib/pagodas/first_settings.sh" "$own"
exec "$own/pagodas"
