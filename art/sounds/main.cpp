// Makes all sounds of the game: make_sounds FOLDER writes them into the folder.

#include "art/sounds/arranger.h"
#include "art/sounds/effects.h"
#include "art/sounds/performer.h"
#include "art/sounds/pieces.h"
#include "art/sounds/wave_writer.h"

#include <filesystem>
#include <iostream>

namespace {

bool report(const std::filesystem::path& path, bool written) {
    if (!written) std::cerr << "make_sounds: cannot write " << path.string() << '\n';
    return written;
}

bool writeEffect(const std::filesystem::path& path, const SoundBuffer& sound) {
    return report(path, writeWaveFile(path, sound));
}

bool writePiece(const std::filesystem::path& folder, const Piece& piece) {
    Arrangement arrangement;
    std::string error;
    if (!arrange(piece, arrangement, error)) {
        std::cerr << "make_sounds: " << error << '\n';
        return false;
    }
    const std::filesystem::path path = folder / piece.fileName;
    return report(path, writeMidiFile(path, perform(piece, arrangement), ticksPerQuarter,
                                      lastTickOf(piece, arrangement)));
}

} // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: make_sounds FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = arguments[1];
    std::error_code ignored; // a folder that cannot be made shows when its files are written
    std::filesystem::create_directories(folder, ignored);
    const bool done = writeEffect(folder / "menu.wav", menuTick()) &&
                      writeEffect(folder / "go.wav", startSignal()) &&
                      writeEffect(folder / "timeup.wav", timeUp()) &&
                      writeEffect(folder / "allright.wav", goalReached()) &&
                      writePiece(folder, offTheLine()) && writePiece(folder, downhillRace()) &&
                      writePiece(folder, glassGarden());
    return done ? 0 : 1;
}
