// Makes the game's sounds: make_sounds GAME SCORES
//
// Reads the scores in the folder SCORES and writes GAME/sounds, replacing files. Exits with 0 when
// every file was written.
#include <filesystem>
#include <iostream>
#include <string>

#include "art/sounds/effects.h"
#include "art/sounds/performance.h"
#include "art/sounds/score.h"

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "usage: make_sounds GAME SCORES\n";
        return 2;
    }
    const std::filesystem::path sounds = std::filesystem::path(arguments[1]) / "sounds";
    const std::filesystem::path scores = arguments[2];
    const auto writeMusic = [&](const std::string& name) {
        return writePerformance(readScore(scores / (name + ".score")), sounds / (name + ".mid"));
    };
    const bool done = menuTick().writeWave(sounds / "menu.wav") &&
                      startSignal().writeWave(sounds / "go.wav") &&
                      timeUp().writeWave(sounds / "timeup.wav") &&
                      goalReached().writeWave(sounds / "allright.wav") && writeMusic("midi1") &&
                      writeMusic("drwho2") && writeMusic("midi3");
    return done ? 0 : 1;
}
