#include "platform/sdl/working_directory.h"

#include <memory>

#include <SDL.h>
#include <unistd.h>

#include "platform/sdl/errors.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* listOfLevels = "maps/maplist.dat";
constexpr const char* dataFolders[] = {"maps", "graphics", "sounds"};

struct SdlFree {
    void operator()(char* text) const { SDL_free(text); }
};

using SdlText = std::unique_ptr<char, SdlFree>;

fs::path folderOfProgram() {
    const SdlText folder(SDL_GetBasePath());
    return folder ? fs::path(folder.get()) : fs::path();
}

// Beside the program, beside a build tree with the program in it or one folder deeper, installed.
std::vector<fs::path> placesOfData() {
    std::vector<fs::path> places = {fs::path(".")};
    const fs::path program = folderOfProgram();
    if (!program.empty())
        for (const char* way : {"game", "../game", "../../game"})
            places.push_back(program / way);
    places.emplace_back(GLORBIX_DATA_DIR);
    return places;
}

// $XDG_DATA_HOME/glorbix, which is made where it is missing; empty when that fails.
fs::path ownFolder() {
    const SdlText folder(SDL_GetPrefPath(nullptr, "glorbix"));
    return folder ? fs::path(folder.get()) : fs::path();
}

bool canWriteHere() {
    return access(".", W_OK) == 0;
}

bool linkOne(const fs::path& target, const fs::path& link, std::error_code& error) {
    const bool isLink = fs::is_symlink(fs::symlink_status(link, error));
    if (!isLink && fs::exists(link, error)) return true;
    if (isLink && fs::read_symlink(link, error) == target) return true;
    if (isLink && !fs::remove(link, error)) return false;
    fs::create_directory_symlink(target, link, error);
    return !error;
}

bool enter(const fs::path& folder) {
    std::error_code error;
    fs::current_path(folder, error);
    return !error;
}

// The last resort: the data's own folder, where the best times may not be kept.
bool enterWithoutOwnFolder(const fs::path& data, const std::string& reason) {
    complain(reason + "; best times may be lost");
    return enter(data);
}

bool enterOwnFolder(const fs::path& data) {
    const fs::path own = ownFolder();
    std::string why = "there is no folder for the player's files";
    if (own.empty() || !linkGameData(data, own, why)) return enterWithoutOwnFolder(data, why);
    return enter(own) || enterWithoutOwnFolder(data, "cannot enter " + own.string());
}

} // namespace

std::optional<fs::path> findGameData(const std::vector<fs::path>& folders) {
    std::error_code ignored;
    for (const fs::path& folder : folders)
        if (fs::is_regular_file(folder / listOfLevels, ignored)) return folder;
    return {};
}

bool linkGameData(const fs::path& data, const fs::path& own, std::string& why) {
    for (const char* folder : dataFolders) {
        std::error_code error;
        if (linkOne(data / folder, own / folder, error)) continue;
        why = "cannot make the link " + (own / folder).string() + ": " + error.message();
        return false;
    }
    return true;
}

bool settleWorkingDirectory(std::string& why) {
    const std::vector<fs::path> places = placesOfData();
    const std::optional<fs::path> found = findGameData(places);
    if (!found) {
        why = std::string("The game's data (") + listOfLevels +
              ") was found neither here, nor beside the program, nor in " GLORBIX_DATA_DIR ".";
        return false;
    }
    if (*found == places.front() && canWriteHere()) return true;
    std::error_code error;
    const fs::path data = fs::canonical(*found, error);
    return enterOwnFolder(error ? *found : data);
}
