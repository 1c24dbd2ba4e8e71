// Chooses the working directory: the folder where the game reads maps, graphics and sounds, and
// keeps the best times. Players cannot write to installed data, so each has a folder of their own
// that links to it.
//
// The operations that return false put the reason into `why`. Where best times cannot be kept, the
// last two return true, and `why` is a notice to the player.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// Returns the first of the folders that holds the game's data, known by the list of levels.
std::optional<std::filesystem::path>
findGameData(const std::vector<std::filesystem::path>& folders);

// Makes the links "maps", "graphics" and "sounds" in `own` to the folders of the same name in
// `data`. Links of an earlier call are replaced. A folder or a link that the player has made stays,
// except a link to nothing. Returns false when a link cannot be made.
bool linkGameData(const std::filesystem::path& data, const std::filesystem::path& own,
                  std::string& why);

// Gives a player who has no best times yet a table to beat: copies the rivals of `data` to the file
// of best times in `own`. Does nothing where that file, or a link of its name, is there already, or
// where the data has no rivals that can be read. Returns false when the file cannot be written.
bool layOutRivals(const std::filesystem::path& data, const std::filesystem::path& own,
                  std::string& why);

// Enters the player's own folder, $XDG_DATA_HOME/glorbix or ~/.local/share/glorbix, with links to
// `data` and best times to beat. When that fails, enters `data` itself if it holds best times, or
// else a folder like the player's that is removed when the process ends, or else `data`. Returns
// false, with a sentence, when none can be entered.
bool enterPlayerFolder(const std::filesystem::path& data, std::string& why);

// Chooses the working directory before the game starts: the current one when it holds the data and
// can be written to; otherwise the player's own folder, with links to the data in the current
// folder, beside the program, or where it was installed. Returns false, with a sentence, when there
// is no data or no folder can be entered.
bool chooseWorkingDirectory(std::string& why);
