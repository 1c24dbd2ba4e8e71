// The instruments that MIDI music is played with.
#pragma once

#include <string>

// The General MIDI sound font of the system: what the variable SDL_SOUNDFONTS names when it is set,
// otherwise the first that exists in the usual places. Empty when there is none.
std::string findSoundFont();
