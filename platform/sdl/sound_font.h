// The instruments that MIDI music is played with.
#pragma once

#include <string>
#include <vector>

// The General MIDI sound fonts that exist, the preferred one first: those that the variable
// SDL_SOUNDFONTS names when it is set, separated by ';' or ':', otherwise those in the usual places.
// Some may turn out to be broken. When there is none, `why` says so in words.
std::vector<std::string> findSoundFonts(std::string& why);
