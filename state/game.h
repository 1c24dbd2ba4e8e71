// The game-wide state, in one record that every part of the game reads and writes directly.
//
// The values beside the fields are those at program start. The record is about 2 MB (two pictures),
// too large for a stack: there is only the global one, which can be neither copied nor moved.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/display_mode.h"
#include "platform/windows_api.h"

// What the player sees. The menu may be open over any of them.
enum class Screen : std::int32_t {
    Title = 1,     // the title picture; the program starts here
    Level = 2,     // a level being played
    BestTimes = 3, // the table of best times
    NameEntry = 4, // the same table while the player types a name into it
};

// The private messages of the window; neither carries parameters.
inline constexpr UINT WM_GAME_TICK = WM_USER + 1;        // one tick: time, world, frame
inline constexpr UINT WM_GAME_START_LEVEL = WM_USER + 2; // start the next level of the run

inline constexpr int LEVEL_NAME_CAPACITY = 256; // bytes of a level file's name, with the final zero

// The time of a level in seconds. It is also the result of a level that was not finished.
inline constexpr float levelTime = 45.0F;

// Captions of the message boxes: errors of the program, and of the files that it reads.
inline constexpr const char* errorCaption = "Error";
inline constexpr const char* fileErrorCaption = "error";

inline constexpr float levelNotFinished = -4.0F; // levelEndAt while the goal has not been reached
inline constexpr float fullTurbo = 5.0F;         // seconds of turbo that each level starts with
inline constexpr float fullPenaltyFade = 0.7F;   // seconds for which a penalty label is shown

struct GameRecord {
    // Defined in state/game.cpp: the compiler would evaluate an inline constructor and put two
    // empty pictures into the program file.
    GameRecord();
    GameRecord(const GameRecord&) = delete;
    GameRecord& operator=(const GameRecord&) = delete;

    // Stops the level: from now on ticks only draw.
    void endLevel();

    // Marks all levels of the run as not finished.
    void clearLevelTimes();

    // Return the times of all levels of the run, and that of the level being played.
    std::span<float> allLevelTimes() const {
        return {levelTimes.get(), static_cast<std::size_t>(levelCount)};
    }
    float& timeOfLevel() const { return levelTimes[static_cast<std::size_t>(levelNumber - 1)]; }

    // Screens and menu
    Screen screen = Screen::Title;
    Screen drawnScreen = {};   // the screen of the last frame; none yet
    std::uint8_t menuOpen = 0; // flag: the menu is shown over the screen
    std::int32_t menuItem = 1; // the selected item, a MenuItem (state/menu.h)
    std::uint8_t paused = 0;   // flag: ticks only draw
    std::uint8_t hasFocus = 1; // flag: the window has the keyboard
    std::int8_t lastKey = 0;   // low 8 bits of the last key pressed, signed; 0 = none

    // Options; they last until the program ends
    std::uint8_t showStatistics = 0; // flag
    std::uint8_t normalMode = 0;     // flag: arrows show normal and slope at the marble
    std::uint8_t farSight = 0;       // flag: the ground is drawn to its end; only without fog
    std::uint8_t fogOn = 1;          // flag
    std::uint8_t midiOn = 1;         // flag: music is wanted
    float cameraLag = 6.0F;          // 0..9, whole: how slowly the camera follows

    // The run: all levels of the list in order
    std::int32_t levelNumber = -1; // counts from 1; 0: a new run is to start; -1: none yet
    std::int32_t levelCount = 0;   // levels of the list; set by loadLevelList with both arrays
    std::unique_ptr<std::unique_ptr<char[]>[]> levelFiles; // one file name for each level
    std::unique_ptr<float[]> levelTimes; // seconds each level took in this run, or levelTime

    // The level being played
    float clock = 0.0F;                  // seconds left; above levelTime: the count-down
    float levelEndAt = levelNotFinished; // the next level starts when the clock is below this
    float holdTime = 0.0F;               // seconds the marble is still held after a reset
    float turbo = fullTurbo;             // seconds of turbo left
    std::uint8_t levelDone = 1;          // flag: the goal was reached, or no level runs
    std::uint8_t stopped = 1;            // flag: no level runs, ticks only draw
    std::uint8_t goPlayed = 0;           // flag: the start sound has been played
    std::uint8_t timeUpPlayed = 0;       // flag: the time-up sound has been played

    // The end of a run
    std::int32_t newBestEntry = -1; // 0..9: this run's place in the best times; -1 none
    std::int32_t nameCursor = 0;    // letters typed so far into that entry's name

    // The penalty label
    std::uint8_t penaltyPending = 0;     // flag: the marble was reset and its label is shown
    float penaltyFade = fullPenaltyFade; // seconds the label has left

    // Time and statistics
    std::int64_t lastCounter = 0;         // performance counter at the last tick or level start
    float frameTime = 0.0F;               // seconds between the last two ticks
    std::int32_t framesThisSecond = 0;    // level frames drawn since the last latch
    std::int32_t trianglesThisSecond = 0; // ground triangles drawn since the last latch
    std::int32_t fps = 0;                 // the frames of the last whole second
    std::int32_t pps = 0;                 // the triangles of the last whole second

    // Music
    std::uint8_t musicPlaying = 0; // flag: a piece is open and meant to be playing
    MCIDEVICEID musicDevice = 0;   // the sequencer opened last
    std::int32_t nextTrack = 1;    // 0..2: the piece to play next (app/audio.h)

    // Pictures: 640 x 480 pixels of red, green, blue; bottom row first
    std::uint8_t titlePending = 1; // flag: the title picture has not been read yet
    std::uint8_t backPending = 1;  // flag: the background picture has not been read yet
    std::uint8_t titlePicture[screenWidth * screenHeight * 3] = {};
    std::uint8_t backPicture[screenWidth * screenHeight * 3] = {};

    // The "Level n" banner
    std::int32_t bannerLevel = -1; // the level whose banner was started last
    float bannerScale = 0.0F;      // its text scale now

    // Window and OpenGL
    HWND window = nullptr;
    HDC deviceContext = nullptr;
    HGLRC glContext = nullptr;
};

extern GameRecord Game;
