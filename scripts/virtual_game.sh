# shellcheck shell=bash
# The real game on a virtual display, to be steered by keys and looked at: source this file.
#
#   startGame BINARY DATA_FOLDER    starts the game in a folder of its own, $gameFolder
#   press KEY...                    presses keys one after the other, by their X names
#   hold KEY... / release KEY...    keys that stay down
#   shoot FILE                      writes a picture of what the player sees
#   waitForEnd SECONDS              waits until the game has ended; its exit code
#   stopGame                        ends game and display; call it from a trap as well
#
# The game's own output is in $gameFolder/log.

gameDisplay=''
gameFolder=''
displayProcess=''
gameProcess=''

startDisplay() {
    local pipe
    pipe=$(mktemp -u)
    mkfifo "$pipe"
    Xvfb -displayfd 3 -screen 0 1280x960x24 -nolisten tcp 3> "$pipe" > /dev/null 2>&1 &
    displayProcess=$!
    read -r -t 20 gameDisplay < "$pipe" || {
        rm -f "$pipe"
        echo "no virtual display could be started" >&2
        return 1
    }
    rm -f "$pipe"
    gameDisplay=":$gameDisplay"
}

# Waits until the game's window is there.
waitForWindow() {
    local try
    for try in $(seq 100); do
        DISPLAY=$gameDisplay xdotool search --name '^Glorbix$' > /dev/null 2>&1 && return 0
        if ! kill -0 "$gameProcess" 2> /dev/null; then
            echo "the game ended at once (try $try):" >&2
            cat "$gameFolder/log" >&2
            return 1
        fi
        sleep 0.1
    done
    echo "the game showed no window" >&2
    return 1
}

startGame() {
    local binary data
    binary=$(realpath "$1")
    data=$(realpath "$2")
    gameFolder=$(mktemp -d)
    ln -s "$data/maps" "$data/graphics" "$data/sounds" "$gameFolder/"
    startDisplay
    (
        cd "$gameFolder" || exit 1
        unset WAYLAND_DISPLAY SDL_VIDEODRIVER
        exec env DISPLAY="$gameDisplay" SDL_AUDIODRIVER="${SDL_AUDIODRIVER:-dummy}" "$binary"
    ) > "$gameFolder/log" 2>&1 &
    gameProcess=$!
    waitForWindow
    sleep 1
}

press() {
    local key
    for key in "$@"; do
        DISPLAY=$gameDisplay xdotool key "$key"
        sleep 0.3
    done
}

hold() { DISPLAY=$gameDisplay xdotool keydown "$@"; }

release() { DISPLAY=$gameDisplay xdotool keyup "$@"; }

shoot() { DISPLAY=$gameDisplay import -window root "$1"; }

waitForEnd() {
    local try
    for try in $(seq $(($1 * 10))); do
        if ! kill -0 "$gameProcess" 2> /dev/null; then
            wait "$gameProcess"
            return
        fi
        sleep 0.1
    done
    echo "the game still runs after $1 seconds ($try looks)" >&2
    return 1
}

stopGame() {
    [ -z "$gameProcess" ] || kill "$gameProcess" 2> /dev/null || true
    [ -z "$gameProcess" ] || wait "$gameProcess" 2> /dev/null || true
    [ -z "$displayProcess" ] || kill "$displayProcess" 2> /dev/null || true
    [ -z "$displayProcess" ] || wait "$displayProcess" 2> /dev/null || true
    [ -z "$gameFolder" ] || rm -rf "$gameFolder"
    gameProcess='' displayProcess='' gameFolder=''
}
