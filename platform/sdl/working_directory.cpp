#include "platform/sdl/working_directory.h"

#include <cstdlib>
#include <memory>

#include <SDL.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/common/errors.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* listOfLevels = "maps/maplist.dat";
constexpr const char* dataFolders[] = {"maps", "graphics", "sounds"};
constexpr const char* rivalsFile = "rivals.dat";
constexpr const char* bestTimesFile = "highScore.dat";

struct SdlFree {
    void operator()(char* text) const { SDL_free(text); }
};

using SdlText = std::unique_ptr<char, SdlFree>;

fs::path folderOfProgram() {
    const SdlText folder(SDL_GetBasePath());
    return folder != nullptr ? fs::path(folder.get()) : fs::path();
}

// In this order: the current folder; beside the program; beside a build folder with the program in
// it or one level deeper; installed, perhaps moved since; installed.
std::vector<fs::path> candidateFolders() {
    std::vector<fs::path> candidates = {fs::path(".")};
    const fs::path program = folderOfProgram();
    if (!program.empty()) {
        for (const char* relative : {"game", "../game", "../../game", GLORBIX_DATA_FROM_PROGRAM}) {
            candidates.push_back(program / relative);
        }
    }
    candidates.emplace_back(GLORBIX_DATA_DIR);
    return candidates;
}

// Where players' programs keep files, by the rules of free desktops; an empty path when the
// environment does not say. SDL_GetPrefPath would take a relative path too, and SDL 3 reads the
// environment only once.
fs::path folderOfPlayersData() {
    const char* chosen = std::getenv("XDG_DATA_HOME");
    if (chosen != nullptr && *chosen == '/') { return chosen; }
    const char* home = std::getenv("HOME");
    return home != nullptr && *home == '/' ? fs::path(home) / ".local/share" : fs::path();
}

// Returns the player's own folder, which is made if it is missing; an empty path when that fails.
fs::path makeOwnFolder(std::string& why) {
    const fs::path folder = folderOfPlayersData();
    if (folder.empty()) {
        why = "there is no folder for the player's files: HOME names none";
        return {};
    }
    std::error_code error;
    const mode_t before = umask(077); // new folders are the player's alone
    fs::create_directories(folder / "glorbix", error);
    umask(before);
    if (!error) { return folder / "glorbix"; }
    why = "cannot make " + (folder / "glorbix").string() + ": " + error.message();
    return {};
}

// Links of the game have a "." in their target (/usr/share/glorbix/./maps), which marks them as
// such. A relative one (./maps) is the player's.
fs::path targetOfLink(const fs::path& data, const char* folder) {
    return data / "." / folder;
}

bool isGameTarget(const fs::path& target) {
    return target.is_absolute() && target.parent_path().filename() == ".";
}

bool makeLink(const fs::path& target, const fs::path& link, std::error_code& error) {
    const bool isLink = fs::is_symlink(fs::symlink_status(link, error));
    if (isLink) {
        const fs::path current = fs::read_symlink(link, error);
        // A target that may not be looked at is not broken.
        const bool isBroken = fs::status(link, error).type() == fs::file_type::not_found;
        if (current == target || (!isGameTarget(current) && !isBroken)) { return true; }
        if (!isGameTarget(current)) { logError(link.string() + " led nowhere and was replaced"); }
        if (!fs::remove(link, error)) { return false; }
    } else if (fs::exists(link, error)) {
        return true;
    }
    fs::create_directory_symlink(target, link, error);
    return !error;
}

bool enter(const fs::path& folder, std::string& why) {
    std::error_code error;
    fs::current_path(folder, error);
    if (error) { why = "cannot enter " + folder.string() + ": " + error.message(); }
    return !error;
}

bool canWriteHere() {
    return access(".", W_OK) == 0;
}

bool prepareAndEnter(const fs::path& data, const fs::path& folder, std::string& why) {
    return linkGameData(data, folder, why) && layOutRivals(data, folder, why) && enter(folder, why);
}

bool enterOwnFolder(const fs::path& data, std::string& why) {
    const fs::path own = makeOwnFolder(why);
    if (own.empty() || !prepareAndEnter(data, own, why)) { return false; }
    if (!canWriteHere()) { why = "cannot write to " + own.string(); }
    return true;
}

// Removed when the process ends.
struct TemporaryFolder {
    fs::path path; // empty: there is none

    // `parent` is empty where TMPDIR names no folder.
    bool make(const fs::path& parent) {
        remove();
        if (parent.empty()) { return false; }
        std::string name = parent / "glorbix-XXXXXX";
        if (mkdtemp(name.data()) != nullptr) { path = name; }
        return !path.empty();
    }

    void remove() {
        std::error_code ignored;
        if (!path.empty()) { fs::remove_all(path, ignored); }
        path.clear();
    }

    ~TemporaryFolder() { remove(); }
};

TemporaryFolder temporary;

// The second place serves where the first is on a full disk.
bool enterTemporaryFolder(const fs::path& data) {
    std::error_code ignored;
    std::string unused;
    for (const fs::path& parent : {fs::temp_directory_path(ignored), fs::path("/dev/shm")}) {
        if (temporary.make(parent) && prepareAndEnter(data, temporary.path, unused)) {
            return true;
        }
    }
    temporary.remove();
    return false;
}

bool hasBestTimes(const fs::path& folder) {
    std::error_code ignored;
    return fs::is_regular_file(folder / bestTimesFile, ignored);
}

} // namespace

std::optional<fs::path> findGameData(const std::vector<fs::path>& folders) {
    std::error_code ignored;
    for (const fs::path& folder : folders) {
        if (fs::is_regular_file(folder / listOfLevels, ignored)) { return folder; }
    }
    return {};
}

bool linkGameData(const fs::path& data, const fs::path& own, std::string& why) {
    for (const char* folder : dataFolders) {
        std::error_code error;
        if (makeLink(targetOfLink(data, folder), own / folder, error)) { continue; }
        why = "cannot make the link " + (own / folder).string() + ": " + error.message();
        return false;
    }
    return true;
}

bool layOutRivals(const fs::path& data, const fs::path& own, std::string& why) {
    std::error_code error;
    const fs::path times = own / bestTimesFile;
    const bool isReadable = access((data / rivalsFile).c_str(), R_OK) == 0;
    if (fs::exists(fs::symlink_status(times, error)) || !isReadable) { return true; }
    if (fs::copy_file(data / rivalsFile, times, error)) {
        // Installed data may be read-only, the player's file is not.
        fs::permissions(times, fs::perms::owner_write, fs::perm_options::add, error);
        return true;
    }
    why = "cannot write " + times.string() + ": " + error.message();
    fs::remove(times, error); // a full disk leaves a part of it
    return false;
}

bool enterPlayerFolder(const fs::path& data, std::string& why) {
    std::string cause;
    const bool inOwn = enterOwnFolder(data, cause);
    const bool inOther = inOwn || (!hasBestTimes(data) && enterTemporaryFolder(data));
    if (!inOther && !enter(data, why)) {
        why = "The game " + why + ".";
        return false;
    }
    if (!temporary.path.empty() || !canWriteHere()) {
        why = "Best times will not be saved: " + cause + ".";
    }
    return true;
}

bool chooseWorkingDirectory(std::string& why) {
    const std::vector<fs::path> candidates = candidateFolders();
    const std::optional<fs::path> found = findGameData(candidates);
    if (!found) {
        why = std::string("The game's data (") + listOfLevels +
              ") was found neither here, nor beside the program, nor in " GLORBIX_DATA_DIR ".";
        return false;
    }
    if (*found == candidates.front() && canWriteHere()) { return true; }
    std::error_code error;
    const fs::path data = fs::canonical(*found, error);
    return enterPlayerFolder(error ? *found : data, why);
}
