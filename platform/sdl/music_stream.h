// Plays music without keeping the game or the audio device waiting. Three threads take part:
//
//   game    calls every operation below; none of them waits for rendering, except stopMusicStream
//   music   started by the first playMusic; loads the sound font, renders up to 1.5 seconds ahead
//   device  SDL_mixer's own; copies samples that are rendered already, or silence
//
// So music plays on while the game takes no messages. The audio device must be open (startSound).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Plays a MIDI file from its start, with the first of the sound fonts that can be read, in place of
// the current piece. The sound starts when a quarter of a second is rendered, and silence at the
// end of the piece is left out. A piece that cannot be played stays silent and never finishes.
// Returns false when the music thread cannot be started.
bool playMusic(std::vector<std::uint8_t> piece, std::vector<std::string> soundFonts);

// Stops the piece at once.
void haltMusic();

// Returns true when the device has played the piece to its end.
bool isMusicFinished();

// Returns the errors of the music thread since the last call, one line each.
std::vector<std::string> takeMusicErrors();

// Stops the piece, ends the music thread and releases the sound font. Call it before the audio
// device is closed.
void stopMusicStream();
