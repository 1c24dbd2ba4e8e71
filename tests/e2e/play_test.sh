#!/usr/bin/env bash
# A whole evening with the real game in a real window: through the menu into a run, down the first
# course with nothing but Up held, past the others, a name among the best times, and out by "Quit".
#   play_test.sh BINARY DATA_FOLDER
# Pictures of the stations are left in the working folder.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
# shellcheck source=scripts/virtual_game.sh
. "$root/scripts/virtual_game.sh"
trap stopGame EXIT

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

# How much of the screen differs between two pictures, in pixels.
difference() { compare -metric AE -fuzz 5% "$1" "$2" null: 2>&1 || true; }

expectChange() { # BEFORE AFTER WHAT
    local changed
    changed=$(difference "$1" "$2")
    awk -v changed="$changed" 'BEGIN { exit !(changed > 300) }' ||
        fail "$3 (only $changed pixels changed)"
}

startGame "$1" "$2"
answerBox Notice
shoot e2e_title.png
press Escape
shoot e2e_menu.png
expectChange e2e_title.png e2e_menu.png "Escape does not open the menu"

press Return
sleep 2
shoot e2e_level.png
expectChange e2e_menu.png e2e_level.png "the level does not appear"

hold Up
sleep 9
shoot e2e_rolling.png
expectChange e2e_level.png e2e_rolling.png "the marble does not roll"
sleep 19
release Up

# The first course takes some 15 seconds behind a count-down of 7, so this is the second.
levels=$(awk '{ print $1; exit }' "$2/maps/maplist.dat")
for _ in $(seq 2 "$levels"); do press F1; done
sleep 1
shoot e2e_name_entry.png
press j o e
sleep 1
shoot e2e_best_times.png
expectChange e2e_name_entry.png e2e_best_times.png "the name entry does not end"

[ ! -e "$gameFolder/highScore.dat" ] || fail "the best times were written before Quit"
press Escape Up Return
waitForEnd 10 || fail "the game does not end by Quit"
read -r -a words < "$gameFolder/highScore.dat" || true
[ "${#words[@]}" -eq 20 ] || fail "the best times have ${#words[@]} words instead of 20"
[ "${words[1]}" = JOE ] || fail "the best time belongs to ${words[1]} instead of JOE"
echo "played to the end: ${words[0]} seconds for ${words[1]}"
