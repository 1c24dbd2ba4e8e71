#include "platform/sdl/sound_font.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace {

constexpr const char* usualPaths[] = {
    "/usr/share/sounds/sf2/default-GM.sf2",    "/usr/share/sounds/sf3/default-GM.sf3",
    "/usr/share/soundfonts/default.sf2",       "/usr/share/soundfonts/default.sf3",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2",    "/usr/share/soundfonts/FluidR3_GM.sf2",
    "/usr/share/soundfonts/FluidR3_GM2-2.sf2", "/usr/share/soundfonts/GeneralUser.sf2",
    "/usr/share/sounds/sf2/TimGM6mb.sf2",      "/usr/share/soundfonts/TimGM6mb.sf2",
    "/usr/local/share/soundfonts/default.sf2", "/usr/local/share/sounds/sf2/default-GM.sf2",
};

bool exists(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

std::vector<std::string> split(const std::string& list, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(list);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

void addExisting(std::vector<std::string>& fonts, const std::string& path) {
    if (exists(path)) { fonts.push_back(path); }
}

// A path may contain ':', so a part that exists as a whole is not split at it.
std::vector<std::string> fontsIn(const std::string& list) {
    std::vector<std::string> fonts;
    for (const std::string& part : split(list, ';')) {
        const bool isPath = exists(part);
        for (const std::string& path : split(part, isPath ? ';' : ':')) {
            addExisting(fonts, path);
        }
    }
    return fonts;
}

} // namespace

std::vector<std::string> findSoundFonts(std::string& why) {
    const char* chosen = std::getenv("SDL_SOUNDFONTS");
    if (chosen != nullptr && *chosen != '\0') {
        why = "SDL_SOUNDFONTS names no file that exists";
        return fontsIn(chosen);
    }
    why = "no General MIDI sound font is installed";
    std::vector<std::string> fonts;
    for (const char* path : usualPaths) {
        addExisting(fonts, path);
    }
    return fonts;
}
