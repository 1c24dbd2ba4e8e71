#!/usr/bin/env bash
# A new player of the unpacked package for Windows meets the rivals: the program writes them beside
# itself as best times, and so shows no notice. A player's own best times stay.
#   new_player_test.sh PROGRAM
# shellcheck source=scripts/virtual_game.sh
. "$(dirname "$(realpath "$0")")/../../scripts/virtual_game.sh"
trap stopGame EXIT

withRivals=yes
startGame "$1" "$(dirname "$1")"
waitForWindow Glorbix
cmp "$gameFolder/rivals.dat" "$gameFolder/highScore.dat"
stopGame

ownTimes=$(sed 's/[A-Z]\{3\}/OWN/' "$(dirname "$1")/rivals.dat")
startGame "$1" "$(dirname "$1")"
waitForWindow Glorbix
[ "$(cat "$gameFolder/highScore.dat")" = "$ownTimes" ]
stopGame
echo "a new player meets the rivals; a player's own best times stay"
