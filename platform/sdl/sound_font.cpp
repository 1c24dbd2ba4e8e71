#include "platform/sdl/sound_font.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <vector>

namespace {

constexpr const char* usualPlaces[] = {
    "/usr/share/sounds/sf2/default-GM.sf2",    "/usr/share/sounds/sf3/default-GM.sf3",
    "/usr/share/soundfonts/default.sf2",       "/usr/share/soundfonts/default.sf3",
    "/usr/share/sounds/sf2/FluidR3_GM.sf2",    "/usr/share/soundfonts/FluidR3_GM.sf2",
    "/usr/share/soundfonts/FluidR3_GM2-2.sf2", "/usr/share/soundfonts/GeneralUser.sf2",
    "/usr/share/sounds/sf2/TimGM6mb.sf2",      "/usr/share/soundfonts/TimGM6mb.sf2",
    "/usr/local/share/soundfonts/default.sf2", "/usr/local/share/sounds/sf2/default-GM.sf2",
};

bool isFile(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

std::string firstFile(const std::string& semicolonList) {
    std::istringstream list(semicolonList);
    std::string path;
    while (std::getline(list, path, ';'))
        if (isFile(path)) return path;
    return {};
}

} // namespace

std::string findSoundFont() {
    const char* chosen = std::getenv("SDL_SOUNDFONTS");
    if (chosen && *chosen) return firstFile(chosen);
    for (const char* place : usualPlaces)
        if (isFile(place)) return place;
    return {};
}
