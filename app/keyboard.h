// The keyboard commands, and the menu that they drive.
//
// Steering and turbo are not here: the simulation samples those keys itself.
#pragma once

#include <cstdint>

#include "platform/windows_api.h"

// The lines of the menu: a main page, and the page of options. Values of Game.menuItem.
namespace MenuItem {
inline constexpr std::int32_t NewGame = 1;   // begin a run
inline constexpr std::int32_t HighScore = 2; // look at the best times, giving up the run
inline constexpr std::int32_t Options = 3;   // to the other page
inline constexpr std::int32_t Quit = 4;      // save the best times and leave
inline constexpr std::int32_t Statistics = 5;
inline constexpr std::int32_t Fog = 6;
inline constexpr std::int32_t FarSight = 7; // out of reach while there is fog
inline constexpr std::int32_t Normal = 8;
inline constexpr std::int32_t CameraLag = 9; // the only line with a value, 0..9
inline constexpr std::int32_t Midi = 10;
inline constexpr std::int32_t Done = 11; // back to the main page
} // namespace MenuItem

// Answers a key-down message: remembers the key for the name entry, then runs its command. Menu
// lines that repeat a key's command post that key to the window, so it runs on a later turn.
void handleKeyDown(WPARAM key);
