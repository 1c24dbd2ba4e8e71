// The folder that the game runs in: it reads maps, graphics and sounds there and keeps the best
// times beside them. Installed data cannot be written to, so a player gets a folder of their own
// with links to it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// The first of the folders that holds the game's data, that is its list of levels.
std::optional<std::filesystem::path>
findGameData(const std::vector<std::filesystem::path>& folders);

// Makes `own` show what `data` holds: maps, graphics and sounds become links to the folders there.
// A folder or a link of the player's own is left alone, except a link that leads nowhere. Links
// that an earlier call made lead to `data` afterwards. Returns false, and why, when that fails.
bool linkGameData(const std::filesystem::path& data, const std::filesystem::path& own,
                  std::string& why);

// Makes the player's own folder, $XDG_DATA_HOME/glorbix or ~/.local/share/glorbix, the current one,
// with links to `data`. Where that is not possible a line on standard error says why, and `data`
// itself becomes the current folder. Returns false, and why as a sentence, when neither works.
bool enterPlayerFolder(const std::filesystem::path& data, std::string& why);

// Settles the working directory before the game starts: the current one when it holds the data and
// can be written to; otherwise the player's own folder with links to the data found beside the
// program or where it was installed. Returns false, and why as a sentence, when there is no data.
bool chooseWorkingDirectory(std::string& why);
