#!/usr/bin/env bash
# Plays two builds of the game, and compares what they show, on displays of the game's own mode.
#   same_pictures.sh BINARY BINARY DATA_FOLDER
# Pictures of both are left in the working folder.
# shellcheck source=scripts/virtual_game.sh
. "$(dirname "$(realpath "$0")")/../../scripts/virtual_game.sh"
trap stopGame EXIT
displaySize=640x480
displayDepth=16

# Prints how many pixels differ by more than FUZZ percent.
differing() { # PICTURE PICTURE FUZZ
    local pixels
    pixels=$(compare -metric AE -fuzz "$3%" "$1" "$2" null: 2>&1) || true
    echo "${pixels%% *}" # ImageMagick 7 adds the share in brackets
}

# Whether the picture is nearly the one of the last look.
isAtRest() { # PICTURE
    cp "$1" last.png
    shoot "$1"
    awk -v differing="$(differing last.png "$1" 5)" 'BEGIN { exit !(differing <= 1000) }'
}

# Takes its pictures as PREFIX_SCREEN.png.
visitScreens() { # BINARY DATA_FOLDER PREFIX
    startGame "$1" "$2"
    answerBox Notice
    shoot "$3_title.png"
    press Escape
    shoot "$3_menu.png"
    press Down Down Return
    shoot "$3_options.png"
    press Escape Down Return
    shoot "$3_best_times.png"
    # In the count-down, when the camera is as good as at rest.
    press Escape Return
    shoot "$3_level.png"
    waitUntil 60 isAtRest "$3_level.png"
    press Escape Up Return
    waitForEnd 60
    stopGame
}

# Fails when more pixels differ than that, by more than FUZZ percent.
expectSame() { # SCREEN PIXELS FUZZ
    local pixels
    pixels=$(differing "one_$1.png" "other_$1.png" "$3")
    echo "$1: $pixels pixels differ"
    awk -v differing="$pixels" -v limit="$2" 'BEGIN { exit !(differing <= limit) }' || {
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
