# shellcheck shell=bash
# Functions that run the real game on a virtual display, press its keys and take pictures. Source
# this file.
#
#   startGame BINARY DATA_FOLDER    starts the game in a folder of its own, $gameFolder; a program
#                                   for Windows (.exe) in Wine, with a copy of the whole folder
#   answerBox TITLE                 waits for the message box and closes it by Return
#   press KEY...                    presses keys one after the other, by their X names
#   pressQuickly KEY...             the same, ten keys a second, also on a busy machine
#   hold KEY... / release KEY...    keys that stay down
#   shoot FILE                      writes a picture of what the player sees
#   waitForEnd SECONDS              waits until the game has ended; returns its exit code
#   stopGame                        ends game and display; call it from a trap as well
#
# The game's output is in $gameFolder/log. The display has the size $displaySize and $displayDepth bits
# a pixel if these are set, and it finds the best times $ownTimes. A program for Windows finds the
# rivals if $withRivals is set. For the others, the command $prepareFolder runs in the game's folder
# before the game starts, and the array $startBy is a command that starts the game. The player's own
# folder of these is $gameFolder/own.

gameDisplay=''
gameFolder=''
displayProcess=''
gameProcess=''
startBy=()
wine='' # the command that runs programs for Windows, if this is one

# Without -noreset the server would reset itself whenever its last client leaves, such as a search
# for a window before the game has connected.
startDisplay() {
    local pipe="$gameFolder/display"
    mkfifo "$pipe"
    Xvfb -displayfd 3 -screen 0 "${displaySize:-1280x960}x${displayDepth:-24}" -nolisten tcp -noreset \
        3> "$pipe" > /dev/null 2>&1 &
    displayProcess=$!
    read -r -t 20 gameDisplay < "$pipe" || {
        echo "no virtual display could be started" >&2
        return 1
    }
    rm "$pipe"
    gameDisplay=":$gameDisplay"
}

# Prints the window of that title; nothing while none is visible.
windowOf() {
    DISPLAY=$gameDisplay xwininfo -name "$1" 2> /dev/null |
        awk '/Window id/ { id = $4 } /IsViewable/ { print id }'
}

hasKeyboard() {
    local window
    window=$(windowOf "$1")
    [ -n "$window" ] &&
        [ $((window)) -eq "$(DISPLAY=$gameDisplay xdotool getwindowfocus 2> /dev/null || echo 0)" ]
}

# Wine leaves that to the window manager.
giveKeyboard() {
    local window
    window=$(windowOf "$1" || true)
    [ -z "$window" ] || DISPLAY=$gameDisplay xdotool windowfocus "$window" 2> /dev/null || true
}

# Waits until a window of that title has the keyboard; up to a minute, for a busy machine.
waitForWindow() {
    local deadline=$((SECONDS + 60))
    while [ "$SECONDS" -lt "$deadline" ]; do
        ! hasKeyboard "$1" || return 0
        [ -z "$wine" ] || giveKeyboard "$1"
        if ! kill -0 "$gameProcess" 2> /dev/null; then
            echo "the game ended before it showed '$1':" >&2
            cat "$gameFolder/log" >&2
            return 1
        fi
        sleep 0.1
    done
    echo "the game showed no window '$1':" >&2
    cat "$gameFolder/log" >&2
    return 1
}

startGame() {
    local binary data
    binary=$(realpath "$1")
    data=$(realpath "$2")
    gameFolder=$(mktemp -d)
    [ -z "${ownTimes:-}" ] || echo -n "$ownTimes" > "$gameFolder/highScore.dat"
    if [[ $binary == *.exe ]]; then
        startInWine "$binary"
        return
    fi
    ln -s "$data/maps" "$data/graphics" "$data/sounds" "$gameFolder/"
    startDisplay
    : > "$gameFolder/log"
    [ -z "${prepareFolder:-}" ] || (cd "$gameFolder" && "$prepareFolder")
    (
        cd "$gameFolder" || exit 1
        unset WAYLAND_DISPLAY SDL_VIDEODRIVER
        exec env DISPLAY="$gameDisplay" SDL_AUDIODRIVER="${SDL_AUDIODRIVER:-dummy}" \
            XDG_DATA_HOME="$gameFolder/own" "${startBy[@]}" "$binary"
    ) > "$gameFolder/log" 2>&1 &
    gameProcess=$!
}

# The game is started from another folder than its own, as by a link on the desktop. Wine switches no
# modes of a virtual display, which therefore has the one that the game asks for.
startInWine() {
    wine=$(realpath "$(dirname "${BASH_SOURCE[0]}")/wine")
    displaySize=640x480
    displayDepth=16
    "$wine" --stop # the desktop of an earlier program may have no display
    cp -r "$(dirname "$1")/." "$gameFolder"
    [ -n "${withRivals:-}" ] || rm -f "$gameFolder/rivals.dat"
    startDisplay
    (
        cd / || exit 1
        DISPLAY=$gameDisplay exec "$wine" "$gameFolder/$(basename "$1")"
    ) > "$gameFolder/log" 2>&1 &
    gameProcess=$!
}

# There is no window manager: the game itself moves the keyboard to the box and back.
answerBox() {
    waitForWindow "$1"
    press Return
    waitForWindow Glorbix
    sleep 1
}

press() {
    local key
    for key in "$@"; do
        DISPLAY=$gameDisplay xdotool key "$key"
        sleep 0.3
    done
}

pressQuickly() { DISPLAY=$gameDisplay xdotool key --delay 100 "$@"; }

hold() { DISPLAY=$gameDisplay xdotool keydown "$@"; }

release() { DISPLAY=$gameDisplay xdotool keyup "$@"; }

shoot() { DISPLAY=$gameDisplay import -window root "$1"; }

waitForEnd() {
    for _ in $(seq $(($1 * 10))); do
        if ! kill -0 "$gameProcess" 2> /dev/null; then
            wait "$gameProcess"
            return
        fi
        sleep 0.1
    done
    echo "the game still runs after $1 seconds" >&2
    return 1
}

stopGame() {
    [ -z "$gameProcess" ] || pkill -KILL -P "$gameProcess" 2> /dev/null || true
    [ -z "$gameProcess" ] || kill -KILL "$gameProcess" 2> /dev/null || true
    [ -z "$gameProcess" ] || wait "$gameProcess" 2> /dev/null || true
    [ -z "$wine" ] || "$wine" --stop
    [ -z "$displayProcess" ] || kill "$displayProcess" 2> /dev/null || true
    [ -z "$displayProcess" ] || wait "$displayProcess" 2> /dev/null || true
    [ -z "$gameFolder" ] || chmod -R u+w "$gameFolder" # a test may have made it read-only
    [ -z "$gameFolder" ] || rm -rf "$gameFolder"
    gameProcess='' displayProcess='' gameFolder='' wine=''
}
