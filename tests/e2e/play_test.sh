#!/usr/bin/env bash
# One run of the real game in a real window: starts a run from the menu, drives the second course
# with nothing but Up held, skips the others, enters a name among the best times, and ends with
# "Quit".
#   play_test.sh BINARY DATA_FOLDER
# Leaves pictures of the steps in the working folder.
# shellcheck source=scripts/virtual_game.sh
. "$(dirname "$(realpath "$0")")/../../scripts/virtual_game.sh"
trap stopGame EXIT
displaySize=640x480

fail() {
    echo "FAILED: $1" >&2
    exit 1
}

levels=$(awk '{ print $1; exit }' "$2/maps/maplist.dat")
mapfile -t others < <(seq 3 "$levels" | sed 's/.*/F1/')

startGame "$1" "$2"
answerBox Notice
shoot e2e_title.png
press Escape
shoot e2e_menu.png
press Return F1
hold Up
waitForNextCourse
release Up
pressQuickly "${others[@]}"
waitForTable
shoot e2e_name_entry.png
press j o e
shoot e2e_best_times.png

[ ! -e "$gameFolder/highScore.dat" ] || fail "the best times were written before Quit"
press Escape Up Return
waitForEnd 60 || fail "the game does not end by Quit"
read -r -a words < "$gameFolder/highScore.dat" || true
[ "${#words[@]}" -eq 20 ] || fail "the best times have ${#words[@]} words instead of 20"
[ "${words[1]}" = JOE ] || fail "the best time belongs to ${words[1]} instead of JOE"
# A course that was not finished counts 45 seconds.
awk -v total="${words[0]}" -v limit=$((45 * levels)) 'BEGIN { exit !(total > 0 && total < limit) }' ||
    fail "${words[0]} seconds for $levels courses: the second was not finished"
echo "played to the end: ${words[0]} seconds for ${words[1]}"
