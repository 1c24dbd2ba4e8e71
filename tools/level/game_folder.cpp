#include "tools/level/game_folder.h"

#include <filesystem>
#include <system_error>

#include "tools/level/program_file.h"

namespace {

using std::filesystem::path;

bool isGameFolder(const path& folder) {
    std::error_code ignored;
    return std::filesystem::is_directory(folder / "graphics", ignored);
}

path installedData() {
    const path data = programFile().parent_path() / GLORBIX_DATA_FROM_PROGRAM;
    return isGameFolder(data) ? data : path(GLORBIX_DATA_DIR);
}

path gameFolderOf(const path& file) {
    for (path folder = file.parent_path();; folder = folder.parent_path()) {
        if (isGameFolder(folder)) { return folder; }
        if (folder == folder.parent_path()) { break; }
    }
    if (isGameFolder(".")) { return "."; }
    if (isGameFolder("game")) { return "game"; }
    return installedData();
}

} // namespace

void enterGameFolder(std::string& file) {
    std::error_code error;
    const path whole = std::filesystem::absolute(file, error).lexically_normal();
    if (error) { return; }
    const path folder = gameFolderOf(whole);
    file = whole.generic_string();
    std::filesystem::current_path(folder, error);
    if (error) { return; }
    const path near = whole.lexically_relative(std::filesystem::current_path(error));
    if (!error && !near.empty() && *near.begin() != "..") { file = near.generic_string(); }
}

std::string absolutePath(const std::string& file) {
    std::error_code ignored;
    return std::filesystem::absolute(file, ignored).string();
}
