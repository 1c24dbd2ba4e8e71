#include "platform/sdl/sequencer.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/common/errors.h"
#include "platform/common/sequencer.h"
#include "platform/regular_file.h"
#include "platform/sdl/music_stream.h"
#include "platform/sdl/sound.h"
#include "platform/sdl/sound_font.h"
#include "platform/sdl/synthesizer.h"

namespace {

// bytes; isPlayableMidi takes up to 10 ms for it, and the game waits so long
constexpr std::size_t largestPiece = 128 << 10;

struct Piece {
    std::vector<std::uint8_t> file;
    std::vector<std::string> soundFonts;
};

Piece piece;

} // namespace

MCIERROR loadPiece(const std::string& fileName) {
    std::vector<std::uint8_t> file;
    std::string why;
    if (!readRegularFile(fileName, largestPiece, file, why)) {
        return refuseMusic(pieceNotFound, "cannot read " + fileName + ": " + why);
    }
    if (!isPlayableMidi(file)) {
        return refuseMusic(badPiece, fileName + " is not a complete MIDI file of up to an hour");
    }
    if (!startSound()) { return musicNotReady; }
    auto soundFonts = findSoundFonts(why);
    if (soundFonts.empty()) { return refuseMusic(musicNotReady, why); }
    piece = {std::move(file), std::move(soundFonts)};
    return 0;
}

MCIERROR startPiece() {
    return playMusic(piece.file, piece.soundFonts)
               ? 0
               : refuseMusic(musicNotReady, "its thread cannot be started");
}

void stopPiece() {
    haltMusic();
}

bool isPieceOver() {
    for (const std::string& error : takeMusicErrors()) {
        logErrorOnce(error);
    }
    return isMusicFinished();
}

void stopSequencer() {
    closeSequencer();
    stopMusicStream();
    piece = {};
}
