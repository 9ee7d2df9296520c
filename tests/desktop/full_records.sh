#!/bin/sh
# full_records.sh GAME PLAIN: fills the fresh game directory GAME with the widest records that the
# rules allow: 1200 players of twelve wide letters in Finesse, one player everywhere in Agility,
# scores of five digits, full history lists, the longest names of layouts, tile sets and backdrops,
# and a content pack of such names. PLAIN is a made game directory with the console.
set -eu
game=$1 made=$2

# A pack of long names; its pictures and its geometry are those of the first list.
rm "$game/DATA"
mkdir "$game/DATA"
ln -s "$(realpath "$made")"/DATA/* "$game/DATA/"
{
    for number in $(seq 24); do echo "Wide Wild Waterways $number"; done
    for number in $(seq 120); do echo "Woodworms of Wondermoor $number"; done
} >"$game/DATA/XP0001"
head -c 79920 /dev/zero | tr '\0' '\1' >"$game/DATA/LY9003"
for sheet in $(seq 10); do
    ln -sf "$(realpath "$made")/DATA/LY00$(printf %02d "$sheet")" "$game/DATA/LY00$((30 + sheet))"
done
ln -sf "$(realpath "$made")/DATA/TS9000" "$game/DATA/TS9003"

longest() { awk '{ n = length($0) } n > most { most = n; best = NR } END { print best }'; }
layout=$(head -120 "$made/DATA/LY0000" | longest)
awk -v layout="$layout" '
    function wide(n,   text, bit) { # twelve wide letters, another word for every n below 4096
        text = ""
        for (bit = 0; bit < 12; bit++) { text = (n % 2 ? "m" : "w") text; n = int(n / 2) }
        return text
    }
    BEGIN {
        print "boot"
        for (number = 1; number <= 120; number++)
            for (place = 1; place <= 10; place++) {
                n = (number - 1) * 10 + place - 1
                for (type = 1; type <= 3; type++) {
                    entry = "ScoreTable(" type "," number "," place ")"
                    printf "set %s.Name \"%s\"\n", entry, type == 2 ? wide(0) : wide(n)
                    printf "set %s.Score %d\n", entry, 31999 - n
                    printf "set %s.Day 28\nset %s.Month 11\nset %s.Year 2026\n", entry, entry, entry
                }
            }
        for (type = 1; type <= 3; type++) {
            for (list = 1; list <= 3; list++)
                for (row = 1; row <= 42; row++) {
                    entry = "History(" type "," list "," row ")"
                    printf "set %s.Name \"%s\"\nset %s.Place \"10\"\n", entry, wide(row - 1), entry
                    printf "set %s.LayoutIndex %d\nset %s.Score 32767\n", entry, layout, entry
                    printf "set %s.Date \"28112026\"\n", entry
                }
            for (box = 1; box <= 12; box++) {
                name = type == 2 ? (box == 1 || box > 10 ? wide(0) : "") : wide((layout - 1) * 10 + box % 11)
                printf "set PlayerNames(%d,%d) \"%s\"\n", type, box, name
            }
        }
        for (number = 1; number <= 360; number++)
            printf "set LayoutWon(%d) 16000\nset LayoutLost(%d) 16767\n", number, number
        print "set ProfileSizeClass(1) " (layout <= 12 ? 1 : layout <= 72 ? 2 : layout <= 108 ? 3 : 4)
        print "set LayoutNumber " layout
        print "set TileSetFixed 58\nset TileGroupShown 2\nset BackdropFixed 15"
        print "set HelpBalloons 1\nset CurrentTrack 28\nset LastName \"" wide(0) "\""
        print "call SaveScores\ncall SaveHistory\ncall SaveWonLost\ncall SaveSettings"
    }' | "$made/pagodas-console" "$game" | grep -vx ok && exit 1
echo "wide records stand in $game"
