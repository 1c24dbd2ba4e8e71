#!/usr/bin/env bash
# The real game on a machine that fails: odd things in place of the best times, kills while they are
# saved, a process that was stopped, a display server that dies. Best times must stay whole, and the
# game must neither crash nor hang.
#   machine_faults_test.sh BINARY DATA_FOLDER
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
# shellcheck source=scripts/virtual_game.sh
. "$root/scripts/virtual_game.sh"
binary=$1
game=$(realpath "$2")
trap stopGame EXIT
displaySize=640x480
rivals=$(cat "$game/rivals.dat")

fail() {
    echo "FAILED: $1" >&2
    cat "$gameFolder/log" >&2
    exit 1
}

# Starts the game in a folder where the command has made highScore.dat.
startWith() { # COMMAND
    prepareFolder=$1
    startGame "$binary" "$game"
}

endByTerm() {
    kill -TERM "$gameProcess"
    waitForEnd 10 || fail "the game does not end as asked"
}

endByQuit() {
    press Escape Up Return
    waitForEnd 10 || fail "the game does not end by Quit"
}

makeTable() { echo -n "$rivals" > highScore.dat; }
makeFolder() { mkdir highScore.dat; }
makePipe() { mkfifo highScore.dat; }
makeLink() { echo -n "$rivals" > table && ln -s table highScore.dat; }
makeHuge() { truncate -s 2G highScore.dat; }

odd() { # WHAT COMMAND
    startWith "$2"
    answerBox Notice
    endByQuit
    stopGame
    echo "best times that are $1: the game plays without them"
}

odd "a folder" makeFolder
odd "a pipe" makePipe
odd "2 GB of zeros" makeHuge

startWith makeLink
waitForWindow Glorbix
endByQuit
[ -L "$gameFolder/highScore.dat" ] || fail "the link to the best times is gone"
[ "$(tr -s ' \n' ' ' < "$gameFolder/table")" = "$(tr -s ' \n' ' ' <<< "$rivals")" ] ||
    fail "the best times behind the link have changed"
stopGame
echo "best times behind a link: saved there"

for i in 1 2 3 4 5 6 7 8; do
    startWith makeTable
    waitForWindow Glorbix
    press Escape Up
    DISPLAY=$gameDisplay xdotool key Return
    sleep "0.0$((i * 7 % 10))"
    kill -KILL "$gameProcess" 2> /dev/null || true
    wait "$gameProcess" 2> /dev/null || true
    [ "$(wc -w < "$gameFolder/highScore.dat")" -eq 20 ] || fail "a kill broke the best times"
    stopGame
done
echo "killed while it saves: the best times are whole"

startWith makeTable
waitForWindow Glorbix
press Escape Return
sleep 1
kill -STOP "$gameProcess"
sleep 3
kill -CONT "$gameProcess"
sleep 1
endByTerm
stopGame
echo "stopped for a while: the game goes on"

startWith makeTable
waitForWindow Glorbix
kill "$displayProcess"
code=0
waitForEnd 10 || code=$?
[ "$code" -lt 124 ] || fail "without its display the game ends with $code"
! kill -0 "$gameProcess" 2> /dev/null || fail "the game hangs without its display"
stopGame
echo "the display server ended: so does the game"
