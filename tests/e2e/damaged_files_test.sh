#!/usr/bin/env bash
# Plays the real game while one of its files is missing, empty, cut in half or filled with random
# bytes. The game must name the file on standard error, and end on request, or by itself with an exit
# code of 1.
#   damaged_files_test.sh BINARY DATA_FOLDER
# shellcheck source=scripts/virtual_game.sh
. "$(dirname "$(realpath "$0")")/../../scripts/virtual_game.sh"
game=$(realpath "$2")
work=$(mktemp -d)
trap 'stopGame; rm -rf "$work"' EXIT
displaySize=640x480
ownTimes=$(cat "$game/rivals.dat")
damaged=$work/damaged
log=$work/log
failures=0

# Beside no data: the game must not find another copy.
mkdir "$work/program"
cp "$1" "$work/program/glorbix"
binary=$work/program/glorbix

damage() { # KIND FILE
    case $1 in
    missing) rm "$2" ;;
    empty) : > "$2" ;;
    cut) truncate -s $(($(stat -c %s "$2") / 2)) "$2" ;;
    random) head -c "$(stat -c %s "$2")" /dev/urandom > "$2.new" && mv "$2.new" "$2" ;;
    esac
}

# Leaves one course: the file itself, or one that Up alone finishes, on the file's ground.
chooseCourse() { # FILE
    local course=maps/spires.lev
    case $1 in
    graphics/ground/*) sed -i "s,graphics/ground/[a-z]*,${1%_*}," "$damaged/$course" ;;
    maps/*.lev) course=$1 ;;
    esac
    echo -n "1 $course" > "$damaged/maps/maplist.dat"
}

# Brings the game to the file. Most are read when a run starts, at the latest.
reach() { # FILE
    case $1 in
    graphics/back.bmp) pressQuickly Escape Down Return ;;
    *) pressQuickly Escape Return ;;
    esac
}

# The game does without sounds, large pictures and the end of a picture.
codeAfter() { # KIND FILE
    case $1:$2 in
    cut:graphics/*.bmp) echo 0 ;;
    *:maps/* | *:graphics/font/* | *:graphics/ground/*) echo 1 ;;
    *) echo 0 ;;
    esac
}

isNamed() { grep -qF "${1##*/}" "$gameFolder/log"; }

isNamedOrHasEnded() { isNamed "$1" || hasEnded; }

# A box may name the file before the game has a window.
hasAnyWindow() {
    DISPLAY=$gameDisplay xdotool search --onlyvisible --name . > /dev/null 2>&1 || hasEnded
}

prepareData() { # KIND FILE
    rm -rf "$damaged"
    mkdir "$damaged"
    cp -r "$game/maps" "$game/graphics" "$game/sounds" "$damaged/"
    [ "$2" = maps/maplist.dat ] || chooseCourse "$2"
    damage "$1" "$damaged/$2"
}

isReadyOrNamed() { isReady Glorbix || isNamedOrHasEnded "$1"; }

# Writes what the game does with the file: "named", "silent", or how it failed. Runs in a process of
# its own.
play() { # KIND FILE
    trap stopGame EXIT
    prepareData "$1" "$2" && startGame "$binary" "$damaged" || return 1
    waitUntil 120 isReadyOrNamed "$2" || true
    isNamed "$2" || reach "$2" 2> /dev/null || true
    waitUntil 600 isNamedOrHasEnded "$2" || true
    waitUntil 60 hasAnyWindow || true
    kill -TERM "$gameProcess" 2> /dev/null || true
    local code=0 what=silent
    waitForEnd 60 2> /dev/null || code=$?
    ! isNamed "$2" || what=named
    [ "$code" -eq "$(codeAfter "$1" "$2")" ] || what="ends with $code"
    ! grep -q "X Error" "$gameFolder/log" || what="breaks the connection to its display"
    hasEnded || what="hangs"
    [ "$what" = named ] || cat "$gameFolder/log" >&2
    stopGame
    echo "$what"
}

expectName() { # KIND FILE
    local what
    what=$(play "$1" "$2" 2> "$log") || what="does not start"
    echo "$2, $1: $what"
    [ "$what" != named ] || return 0
    cat "$log" >&2
    failures=$((failures + 1))
}

expectName missing maps/maplist.dat
expectName empty maps/maplist.dat
expectName random maps/first_roll.lev
expectName empty maps/first_roll.lev
expectName cut graphics/title.bmp
expectName random graphics/title.bmp
expectName missing graphics/back.bmp
expectName empty graphics/font/font.dat
expectName cut graphics/font/font_7.bmp
expectName missing graphics/ground/tiles_6.bmp
expectName cut sounds/midi1.mid
expectName random sounds/menu.wav
expectName cut sounds/go.wav
[ "$failures" -eq 0 ]
