// The menu as one table, read by the keys that drive it and by the drawing: a main page, and the
// page of options.
#pragma once

#include <cstddef>
#include <cstdint>

#include "state/game.h"

// The lines of the menu; values of Game.menuItem.
namespace MenuItem {
inline constexpr std::int32_t NewGame = 1;   // begins a run
inline constexpr std::int32_t HighScore = 2; // abandons the run and shows the best times
inline constexpr std::int32_t Options = 3;   // opens the options page
inline constexpr std::int32_t Quit = 4;      // saves the best times and ends the game
inline constexpr std::int32_t Statistics = 5;
inline constexpr std::int32_t Fog = 6;
inline constexpr std::int32_t FarSight = 7; // cannot be reached by the arrows while there is fog
inline constexpr std::int32_t Normal = 8;
inline constexpr std::int32_t CameraLag = 9; // the only line with a value, 0..9
inline constexpr std::int32_t Midi = 10;
inline constexpr std::int32_t Done = 11; // returns to the main page
} // namespace MenuItem

// What Enter does on a line.
enum class MenuAction {
    StartRun,
    ShowBestTimes,
    GoTo, // selects the item `target`
    Quit,
    PostKey, // posts the key `target` to the window
    RaiseCameraLag,
};

// A flag of the Game record.
using MenuSwitch = std::uint8_t(GameRecord::*);

struct MenuLine {
    const char* text;
    MenuSwitch option; // shown as "ON" or "OFF" after the text; nullptr: none
    MenuAction action;
    int target; // of GoTo and PostKey; otherwise 0
};

// In the order of MenuItem, which starts at 1.
inline constexpr MenuLine menuLines[] = {
    {"NeW Game", nullptr, MenuAction::StartRun, 0},
    {"HIGHSCORE", nullptr, MenuAction::ShowBestTimes, 0},
    {"Options", nullptr, MenuAction::GoTo, MenuItem::Statistics},
    {"Quit", nullptr, MenuAction::Quit, 0},
    {"Statistics: ", &GameRecord::showStatistics, MenuAction::PostKey, VK_F2},
    {"Fog: ", &GameRecord::fogOn, MenuAction::PostKey, VK_F5},
    {"Far Sight: ", &GameRecord::farSight, MenuAction::PostKey, VK_F4},
    {"Normal: ", &GameRecord::normalMode, MenuAction::PostKey, VK_F3},
    {"Camera Lag: ", nullptr, MenuAction::RaiseCameraLag, 0},
    {"MIDI: ", &GameRecord::midiOn, MenuAction::PostKey, VK_F6},
    {"Done", nullptr, MenuAction::GoTo, MenuItem::Options},
};

inline const MenuLine& menuLine(std::int32_t item) {
    return menuLines[static_cast<std::size_t>(item - 1)];
}

// A page: its first and last item, and the top left corner of its text in screen pixels.
struct MenuPage {
    std::int32_t first;
    std::int32_t last;
    float x;
    float y;
};

inline constexpr MenuPage mainPage = {MenuItem::NewGame, MenuItem::Quit, 220.0F, 160.0F};
inline constexpr MenuPage optionsPage = {MenuItem::Statistics, MenuItem::Done, 185.0F, 120.0F};

inline const MenuPage& menuPageOf(std::int32_t item) {
    return item < optionsPage.first ? mainPage : optionsPage;
}
