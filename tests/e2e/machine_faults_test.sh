#!/usr/bin/env bash
# The real game on a machine that fails: odd things in place of the best times, kills while they are
# saved, a full disk, a read-only folder, a process that was stopped, a display server that
# dies. Best times must stay whole, and the game must neither crash nor hang.
#   machine_faults_test.sh BINARY DATA_FOLDER
# shellcheck source=scripts/virtual_game.sh
. "$(dirname "$(realpath "$0")")/../../scripts/virtual_game.sh"
binary=$1
game=$(realpath "$2")
disk=$(mktemp -d)
trap 'endStory; rm -rf "$disk"' EXIT
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

endByQuit() {
    press Escape Up Return
    waitForEnd 60 || fail "the game does not end by Quit"
}

endStory() {
    stopGame
    ! mountpoint -q "$disk" || umount --lazy "$disk"
    startBy=()
}

story() { # WHAT COMMAND...
    "${@:2}"
    endStory
    echo "$1"
}

says() { grep -qF "$1" "$gameFolder/log"; }

hasRivals() { # FILE
    [ "$(tr -s ' \n' ' ' < "$1")" = "$(tr -s ' \n' ' ' <<< "$rivals")" ]
}

makeTable() { echo -n "$rivals" > highScore.dat; }
makeFolder() { mkdir highScore.dat; }
makePipe() { mkfifo highScore.dat; }
makeHuge() { truncate -s 2G highScore.dat; }
makeLinkToDisk() { echo -n "$rivals" > "$disk/table" && ln -s "$disk/table" highScore.dat; }

odd() { # COMMAND
    startWith "$1"
    answerBox Notice
    endByQuit
}

killedWhileSaving() {
    local i # the kill comes at another moment each time
    for i in 1 2 3 4 5 6 7 8; do
        startWith makeTable
        waitForWindow Glorbix
        press Escape Up
        DISPLAY=$gameDisplay xdotool key Return
        sleep "0.0$((i * 7 % 10))"
        kill -KILL "$gameProcess" 2> /dev/null || true
        wait "$gameProcess" 2> /dev/null || true
        hasRivals "$gameFolder/highScore.dat" || fail "a kill broke the best times"
        endStory
    done
}

# One of the disk's two pages holds the table, the other one is full. Who may not mount a disk limits
# the size of files instead; the log then passes through a pipe.
fillDisk() {
    if mount -t tmpfs -o size=8k tmpfs "$disk" 2> /dev/null; then
        head -c 4096 /dev/zero > "$disk/full"
    else
        startBy=(bash -c 'exec > >(cat > log) 2>&1; trap "" XFSZ; ulimit -f 0; exec "$@"' -)
    fi
}

fullDisk() {
    fillDisk
    startWith makeLinkToDisk
    waitForWindow Glorbix
    endByQuit
    waitUntil 60 says "highScore.dat: the best times are not saved" || fail "the game does not say so"
    hasRivals "$disk/table" || fail "the best times are lost"
}

# Root may write everywhere unless it gives that up.
obeyRights() {
    [ "$(id -u)" -ne 0 ] || startBy=(setpriv --bounding-set=-dac_override)
}

leaveOwnFolder() { mkdir own && chmod a-w .; }
leaveNoFolder() { makeTable && chmod a-w . highScore.dat; }
leaveRivals() { cp "$game/rivals.dat" . && chmod a-w .; }

readOnlyFolder() {
    obeyRights
    startWith leaveOwnFolder
    answerBox Notice
    endByQuit
    [ -s "$gameFolder/own/glorbix/highScore.dat" ] || fail "the player's own folder has no best times"
    endStory

    obeyRights
    startWith leaveNoFolder
    answerBox Notice
    says "Best times will not be saved" || fail "the game does not warn"
    endByQuit
    says "highScore.dat: the best times are not saved" || fail "the game does not say so"
    hasRivals "$gameFolder/highScore.dat" || fail "the best times are lost"
    endStory

    obeyRights
    startBy=(env TMPDIR="$disk" "${startBy[@]}")
    startWith leaveRivals
    answerBox Notice
    hasRivals "$disk"/glorbix-*/highScore.dat || fail "the rivals are missing"
    ! says "Creating new highScores file" || fail "the game promises a new file"
    endByQuit
    ! ls -d "$disk"/glorbix-* 2> /dev/null || fail "the temporary folder stays"
}

takeSound() {
    makeTable
    rm sounds
    mkdir sounds
    ln -s "$game"/sounds/* sounds/
    rm sounds/go.wav
}

# Seven seconds after its start a course plays go.wav, which is missing here.
stoppedProcess() {
    local before
    startWith takeSound
    waitForWindow Glorbix
    press Escape Return
    kill -STOP "$gameProcess"
    sleep 10 # longer than what is left of the count-down
    before=$(screenSum)
    kill -CONT "$gameProcess"
    # The second frame after the stop comes when all that the first one brought has been said.
    for _ in 1 2; do
        waitUntil 60 hasChanged "$before" || fail "the game shows no frame after it was stopped"
        before=$(screenSum)
    done
    ! says go.wav || fail "the clock ran while the game was stopped"
    waitUntil 60 says go.wav || fail "the clock stands still after the game was stopped"
    endByQuit
}

lostDisplay() {
    local code=0
    startWith makeTable
    waitForWindow Glorbix
    kill -KILL "$displayProcess"
    wait "$displayProcess" 2> /dev/null || true
    waitForEnd 60 || code=$?
    hasEnded || fail "the game hangs without its display"
    [ "$code" -eq 1 ] || fail "without its display the game ends with $code"
    hasRivals "$gameFolder/highScore.dat" || fail "the best times are lost"
}

story "best times that are a folder: the game plays without them" odd makeFolder
story "best times that are a pipe: the game plays without them" odd makePipe
story "best times that are 2 GB of zeros: the game plays without them" odd makeHuge
story "killed while it saves: the best times are whole" killedWhileSaving
story "a full disk: the game says so, and the best times stay" fullDisk
story "a read-only folder: the player's own is used, or nothing is saved" readOnlyFolder
story "stopped for ten seconds: the game goes on where it was" stoppedProcess
story "the display server died: the game ends" lostDisplay
