// The MIDI sequencer: mciSendCommandA opens, plays and closes one piece at a time. Each provider
// defines the operations that play it.
#pragma once

#include <string>

#include "platform/windows_api.h"

// Error codes of mciSendCommandA that a provider finds.
inline constexpr MCIERROR pieceNotFound = 275;
inline constexpr MCIERROR musicNotReady = 276;
inline constexpr MCIERROR badPiece = 296;

// Provided. Reads a piece for startPiece; one that plays goes on. Returns 0 or an error code, and
// then leaves the piece that was read before.
MCIERROR loadPiece(const std::string& fileName);

// Provided. Plays the piece that was read last from its start. Returns 0 or an error code.
MCIERROR startPiece();

// Provided. Stops the piece at once.
void stopPiece();

// Provided. Returns true from the end of the piece until another one is started. Writes what went
// wrong with the music since the last call on standard error.
bool isPieceOver();

// Writes why there is no music on standard error, once for each reason. Returns the error.
MCIERROR refuseMusic(MCIERROR error, const std::string& why);

// Posts MM_MCINOTIFY when the piece has ended. PeekMessageA calls it every time.
void updateSequencer();

// Closes the piece without a message.
void closeSequencer();
