// Finds the sound fonts: files of instruments that MIDI music is played with.
#pragma once

#include <string>
#include <vector>

// Returns the paths of the General MIDI sound fonts that exist, the preferred one first. If the
// environment variable SDL_SOUNDFONTS is set, they are its paths, separated by ';' or ':';
// otherwise they are those of the usual places. The files are not opened. When there are none,
// `why` holds the reason.
std::vector<std::string> findSoundFonts(std::string& why);
