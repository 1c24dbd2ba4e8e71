#!/usr/bin/env bash
# Starts a run of the real game while one of its files is missing, empty, cut in half or filled with
# random bytes. The game must end by itself or on request, and name the file on standard error.
#   damaged_files_test.sh BINARY DATA_FOLDER         one damage to a file of each kind
#   damaged_files_test.sh BINARY DATA_FOLDER all     all damages to every file: half an hour
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
# shellcheck source=scripts/virtual_game.sh
. "$root/scripts/virtual_game.sh"
binary=$1
game=$(realpath "$2")
damaged=$(mktemp -d)
trap 'stopGame; rm -rf "$damaged" "$log"' EXIT
displaySize=640x480
ownTimes=$(cat "$game/rivals.dat")
log=$damaged.log
failures=0

damage() { # KIND FILE
    case $1 in
    missing) rm "$2" ;;
    empty) : > "$2" ;;
    cut) truncate -s $(($(stat -c %s "$2") / 2)) "$2" ;;
    random) head -c "$(stat -c %s "$2")" /dev/urandom > "$2.new" && mv "$2.new" "$2" ;;
    esac
}

# The ground of the only course left is the one that the file belongs to.
chooseCourse() { # FILE
    local course=maps/first_roll.lev ground=${1%_*}
    case $1 in
    graphics/ground/*) course=maps/$(basename "$(grep -lE "$ground( |$)" "$game"/maps/*.lev | head -n 1)") ;;
    maps/*.lev) course=$1 ;;
    esac
    echo -n "1 $course" > "$damaged/maps/maplist.dat"
}

# Writes what the game does with the file: "named", "silent", or how it failed.
play() { # KIND FILE
    rm -rf "${damaged:?}"/*
    cp -r "$game/maps" "$game/graphics" "$game/sounds" "$damaged/"
    [ "$2" = maps/maplist.dat ] || chooseCourse "$2"
    damage "$1" "$damaged/$2"
    startGame "$binary" "$damaged"
    sleep 0.8
    pressQuickly Escape Return Return
    sleep 0.7
    kill -TERM "$gameProcess" 2> /dev/null || true
    local code=0 what=silent
    waitForEnd 10 2> /dev/null || code=$?
    [ "$code" -lt 124 ] || what="ends with $code"
    ! grep -q "X Error" "$gameFolder/log" || what="breaks the connection to its display"
    ! kill -0 "$gameProcess" 2> /dev/null || what="hangs"
    if [ "$what" = silent ] && grep -qF "${2##*/}" "$gameFolder/log"; then what=named; fi
    [ "$what" = named ] || cat "$gameFolder/log" >&2
    stopGame
    echo "$what"
}

# The game reads the file in the first seconds, so it must name it.
expectName() { # KIND FILE
    local what
    what=$(play "$1" "$2" 2> "$log") || what="does not start"
    echo "$2, $1: $what"
    [ "$what" != named ] || return 0
    cat "$log" >&2
    failures=$((failures + 1))
}

# The game reads the file later, or takes any bytes: it must only play on, or end as it should.
expectSurvival() { # KIND FILE
    local what
    what=$(play "$1" "$2" 2> "$log") || what="does not start"
    echo "$2, $1: $what"
    [ "$what" != named ] && [ "$what" != silent ] || return 0
    cat "$log" >&2
    failures=$((failures + 1))
}

if [ "${3:-}" = all ]; then
    mapfile -t files < <(cd "$game" && ls maps/* graphics/*.* graphics/*/* sounds/*)
    for file in "${files[@]}"; do
        for kind in missing empty cut random; do
            expectSurvival "$kind" "$file"
        done
    done
else
    expectName empty maps/maplist.dat
    expectName random maps/first_roll.lev
    expectName empty maps/first_roll.lev
    expectName cut graphics/title.bmp
    expectName random graphics/title.bmp
    expectName empty graphics/font/font.dat
    expectName cut graphics/font/font_7.bmp
    expectName missing graphics/ground/embers_6.bmp
    expectName cut sounds/midi1.mid
    expectName random sounds/menu.wav
    expectSurvival missing graphics/back.bmp
fi
[ "$failures" -eq 0 ]
