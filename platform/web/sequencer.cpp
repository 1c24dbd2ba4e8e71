// Music on the page, which has no synthesizer: it plays recordings of the pieces, which were made
// with the program.
#include "platform/common/sequencer.h"

#include "platform/web/page_calls.h"

namespace {

std::string piece; // the name of its MIDI file

} // namespace

MCIERROR loadPiece(const std::string& fileName) {
    if (pageHasPiece(fileName.c_str()) == 0) {
        return refuseMusic(pieceNotFound, "there is no recording of " + fileName);
    }
    piece = fileName;
    return 0;
}

MCIERROR startPiece() {
    pagePlayPiece(piece.c_str());
    return 0;
}

void stopPiece() {
    pageStopMusic();
}

bool isPieceOver() {
    return pageIsMusicOver() != 0;
}
