// Music that keeps neither the game nor the audio device waiting: a thread of its own loads the
// instruments and renders up to 1.5 seconds ahead, and the device only copies. The music goes on
// while the game does not look for messages.
//
// All operations belong to the game's thread.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Plays a MIDI file from its start, with the first of the sound fonts that is not broken, in place
// of the current piece. It sounds as soon as its first half second is rendered. The audio device has
// to be open. Returns false when there is no thread to be had.
bool playMusic(std::vector<std::uint8_t> piece, std::vector<std::string> soundFonts);

// Silence, at once.
void haltMusic();

// True when the piece has been played to its end.
bool isMusicFinished();

// What went wrong since the last call, one line each.
std::vector<std::string> takeMusicErrors();

// Silence, and gives the instruments back. Call it before the audio device is closed.
void stopMusicStream();
