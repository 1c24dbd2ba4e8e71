#!/usr/bin/env bash
# One run of the real game in a real window: starts a run from the menu, drives the first course
# with nothing but Up held, skips the others, enters a name among the best times, and ends with
# "Quit".
#   play_test.sh BINARY DATA_FOLDER
# Leaves pictures of the steps in the working folder.
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

# Takes pictures until one differs from the one before the last key.
expectChange() { # BEFORE AFTER WHAT
    local deadline=$((SECONDS + 30)) changed=0
    while [ "$SECONDS" -lt "$deadline" ]; do
        shoot "$2"
        changed=$(difference "$1" "$2")
        ! awk -v changed="$changed" 'BEGIN { exit !(changed > 300) }' || return 0
    done
    fail "$3 (only $changed pixels changed)"
}

levels=$(awk '{ print $1; exit }' "$2/maps/maplist.dat")
mapfile -t others < <(seq 2 "$levels" | sed 's/.*/F1/')

startGame "$1" "$2"
answerBox Notice
shoot e2e_title.png
press Escape
expectChange e2e_title.png e2e_menu.png "Escape does not open the menu"

press Return
# The first course takes some 15 seconds after a count-down of 7. The second cannot be finished in
# the seconds that are left, so it is running now.
hold Up
sleep 27
release Up
pressQuickly "${others[@]}"
sleep 1
shoot e2e_name_entry.png
press j o e
sleep 1
expectChange e2e_name_entry.png e2e_best_times.png "the name entry does not end"

[ ! -e "$gameFolder/highScore.dat" ] || fail "the best times were written before Quit"
press Escape Up Return
waitForEnd 10 || fail "the game does not end by Quit"
read -r -a words < "$gameFolder/highScore.dat" || true
[ "${#words[@]}" -eq 20 ] || fail "the best times have ${#words[@]} words instead of 20"
[ "${words[1]}" = JOE ] || fail "the best time belongs to ${words[1]} instead of JOE"
# A course that was not finished counts 45 seconds.
awk -v total="${words[0]}" -v limit=$((45 * levels)) 'BEGIN { exit !(total > 0 && total < limit) }' ||
    fail "${words[0]} seconds for $levels courses: the first was not finished"
echo "played to the end: ${words[0]} seconds for ${words[1]}"
