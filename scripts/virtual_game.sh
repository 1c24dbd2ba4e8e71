# shellcheck shell=bash
# Functions that run the real game on a virtual display, press its keys and take pictures. Source
# this file; it reads environment.sh.
#
#   startGame BINARY DATA_FOLDER    starts the game in a folder of its own, $gameFolder; a program
#                                   for Windows (.exe) in Wine, with a copy of the whole folder
#   answerBox TITLE                 waits for the message box and closes it by Return
#   press KEY...                    presses keys by their X names, each when something on the screen
#                                   has changed after the one before; waits for the last one too
#   pressQuickly KEY...             presses ten keys a second; the game takes them one by one
#   hold KEY... / release KEY...    keys that stay down
#   shoot FILE                      writes a picture of what the player sees
#   waitUntil SECONDS COMMAND...    waits until the command succeeds; fails after that time, which is
#                                   generous: a busy machine is slow
#   waitForClock SECONDS            waits until a course's clock shows at most that many seconds
#   waitForNextCourse               waits until the goal is reached and the next clock begins
#   waitForTable                    waits until the run is over and the best times are shown
#   waitForEnd SECONDS              waits until the game has ended; returns its exit code
#   stopGame                        ends game and display; call it from a trap as well
#
# The game's output is in $gameFolder/log. The display has the size $displaySize and $displayDepth bits
# a pixel if these are set, and it finds the best times $ownTimes. A program for Windows finds the
# rivals if $withRivals is set. For the others, the command $prepareFolder runs in the game's folder
# before the game starts, and the array $startBy is a command that starts the game. The player's own
# folder of these is $gameFolder/own.

# shellcheck source=scripts/environment.sh
. "$(dirname "${BASH_SOURCE[0]}")/environment.sh"

gameDisplay=''
screen='' # the file that always holds what the display shows
gameFolder=''
displayProcess=''
gameProcess=''
startBy=()
wine='' # the command that runs programs for Windows, if this is one

# Without -noreset the server would reset itself whenever its last client leaves, such as a search
# for a window before the game has connected.
startDisplay() {
    local pipe="$gameFolder/display" shown="$gameFolder/screen"
    mkfifo "$pipe"
    mkdir "$shown"
    screen=$shown/Xvfb_screen0
    Xvfb -displayfd 3 -screen 0 "${displaySize:-1280x960}x${displayDepth:-24}" -nolisten tcp -noreset \
        -fbdir "$shown" 3> "$pipe" > /dev/null 2>&1 &
    displayProcess=$!
    read -r -t 20 gameDisplay < "$pipe" || {
        echo "no virtual display could be started" >&2
        return 1
    }
    rm "$pipe"
    gameDisplay=":$gameDisplay"
}

waitUntil() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] || return 1
        sleep 0.05
    done
}

screenSum() { cksum "$screen" 2> /dev/null || true; }

hasChanged() { [ "$(screenSum)" != "$1" ]; } # SUM

# Several colours: neither the game before its first frame nor an empty display.
showsPicture() { [ "$(convert "xwd:$screen" -format %k info: 2> /dev/null || echo 0)" -gt 1 ]; }

# Prints the colours of a part of the game's 640 x 480 pixels, in lines of red, green and blue.
colours() { # GEOMETRY
    convert "xwd:$screen" -sample '640x480!' -crop "$1" -depth 8 rgb:- | od -An -v -tu1 -w3
}

# Prints the seconds on the clock, to about one: its colour is green at 45 and red at 0. Nothing
# while there is no clock.
clock() {
    colours 84x28+280+2 | awk '$3 < 10 && $1 + $2 > 235 && $1 + $2 < 275 {
            ++pixels
            sum += $2 / ($1 + $2)
        }
        END { if (pixels > 40) printf "%.0f\n", 45 * sum / pixels }'
}

clockShows() { # SECONDS
    local seconds
    seconds=$(clock)
    [ -n "$seconds" ] && [ "$seconds" -le "$1" ]
}

waitForClock() {
    waitUntil 180 clockShows "$1" || {
        echo "the clock never showed $1 seconds" >&2
        return 1
    }
}

hasNoClock() {
    local seconds
    seconds=$(clock) && [ -z "$seconds" ]
}

waitForTable() {
    waitUntil 180 hasNoClock || {
        echo "the run does not end" >&2
        return 1
    }
}

# A course begins with far more time than is left at the goal of the one before.
lowestClock=45
clockHasRisen() {
    local now
    now=$(clock)
    [ -n "$now" ] || return 1
    if [ "$now" -lt "$lowestClock" ]; then lowestClock=$now; fi
    [ "$now" -gt $((lowestClock + 5)) ]
}

waitForNextCourse() {
    lowestClock=45
    waitUntil 180 clockHasRisen || {
        echo "the next course does not come; the clock was at $lowestClock" >&2
        return 1
    }
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

hasEnded() { ! kill -0 "$gameProcess" 2> /dev/null; }

isReady() { # TITLE
    [ -z "$wine" ] || giveKeyboard "$1"
    hasKeyboard "$1" && showsPicture
}

isReadyOrHasEnded() { isReady "$1" || hasEnded; }

# Waits until a window of that title has the keyboard and is drawn.
waitForWindow() {
    if ! waitUntil 120 isReadyOrHasEnded "$1" || hasEnded; then
        echo "the game ended or hung before it showed '$1':" >&2
        cat "$gameFolder/log" >&2
        return 1
    fi
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
}

# xwininfo returns when the display has finished what it was drawing.
press() {
    local key before
    for key in "$@"; do
        before=$(screenSum)
        DISPLAY=$gameDisplay xdotool key "$key"
        waitUntil 60 hasChanged "$before" || {
            echo "nothing on the screen has changed after the key $key" >&2
            return 1
        }
        DISPLAY=$gameDisplay xwininfo -root > /dev/null
    done
}

pressQuickly() { DISPLAY=$gameDisplay xdotool key --delay 100 "$@"; }

hold() { DISPLAY=$gameDisplay xdotool keydown "$@"; }

release() { DISPLAY=$gameDisplay xdotool keyup "$@"; }

shoot() { DISPLAY=$gameDisplay import -window root "$1"; }

waitForEnd() {
    waitUntil "$1" hasEnded || {
        echo "the game still runs after $1 seconds" >&2
        return 1
    }
    wait "$gameProcess"
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
    gameProcess='' displayProcess='' gameFolder='' screen='' wine=''
}
