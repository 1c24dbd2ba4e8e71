#!/usr/bin/env bash
# Plays two builds of the game, and compares what they show, on displays of the game's own mode.
#   same_pictures.sh BINARY BINARY DATA_FOLDER
# Pictures of both are left in the working folder.
# shellcheck source=scripts/virtual_game.sh
. "$(dirname "$(realpath "$0")")/../../scripts/virtual_game.sh"
trap stopGame EXIT
displaySize=640x480
displayDepth=16

# For a second nothing has changed.
isAtRest() {
    local before
    before=$(screenSum)
    sleep 1
    ! hasChanged "$before"
}

# Takes its pictures as PREFIX_SCREEN.png.
visitScreens() { # BINARY DATA_FOLDER PREFIX
    startGame "$1" "$2"
    answerBox Notice
    shoot "$3_title.png"
    press Escape
    shoot "$3_menu.png"
    press Down Down Return
    press Down Down Down Left Left Left Left Left Left # no camera lag: the camera comes to rest soon
    shoot "$3_options.png"
    press Escape Down Return
    shoot "$3_best_times.png"
    # In the count-down, when the camera is at rest: later the clock changes all the time.
    press Escape Return
    waitForClock 45
    waitUntil 60 isAtRest
    shoot "$3_level.png"
    press Escape Up Return
    waitForEnd 60
    stopGame
}

# Fails when more pixels differ than that, by more than FUZZ percent.
expectSame() { # SCREEN PIXELS FUZZ
    local differing
    differing=$(compare -metric AE -fuzz "$3%" "one_$1.png" "other_$1.png" null: 2>&1) || true
    differing=${differing%% *} # ImageMagick 7 adds the share in brackets
    echo "$1: $differing pixels differ"
    awk -v differing="$differing" -v limit="$2" 'BEGIN { exit !(differing <= limit) }' || {
        echo "FAILED: $1 looks different" >&2
        exit 1
    }
}

visitScreens "$1" "$3" one
visitScreens "$2" "$3" other
for screen in title menu options best_times; do
    expectSame "$screen" 0 0
done
# The camera has had another number of frames to come to rest.
expectSame level 3000 5
