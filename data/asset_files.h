// The names of the game's pictures and sounds, relative to the game's folder. The programs in art/
// make these files. (data/font.h names those of the font.)
#pragma once

inline constexpr const char* titlePictureFile = "graphics/title.bmp";
inline constexpr const char* backPictureFile = "graphics/back.bmp"; // behind the best times
inline constexpr const char* groundFolder = "graphics/ground";      // one mip chain for each ground

inline constexpr const char* menuSound = "sounds/menu.wav";     // a menu key, a letter of a name
inline constexpr const char* goSound = "sounds/go.wav";         // the count-down is over
inline constexpr const char* timeUpSound = "sounds/timeup.wav"; // the level's time has run out
inline constexpr const char* goalSound = "sounds/allright.wav"; // the marble is over the goal line

// In the order of Game.nextTrack; the first starts every run.
inline constexpr const char* musicFiles[] = {"sounds/midi1.mid", "sounds/drwho2.mid",
                                             "sounds/midi3.mid"};
inline constexpr int musicFileCount = 3;
