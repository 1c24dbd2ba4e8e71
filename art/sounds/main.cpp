// Makes the game's sounds: make_sounds GAME SCORES
//
// Reads the scores in the folder SCORES and writes GAME/sounds, replacing files. Exits with 0 when
// every file was written.
#include <filesystem>
#include <iostream>

#include "art/sounds/effects.h"
#include "art/sounds/performance.h"
#include "art/sounds/score.h"
#include "data/asset_files.h"

using std::filesystem::path;

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: make_sounds GAME SCORES\n";
        return 2;
    }
    const path game = arguments[1];
    const path scores = arguments[2];
    bool done = menuTick().writeWave(game / menuSound) && startSignal().writeWave(game / goSound) &&
                timeUp().writeWave(game / timeUpSound) && goalReached().writeWave(game / goalSound);
    for (const path file : musicFiles) {
        const path score = scores / file.filename().replace_extension(".score");
        done = done && writePerformance(readScore(score), game / file);
    }
    return done ? 0 : 1;
}
