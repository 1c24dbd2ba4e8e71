// glorbix-level map: draws a course from above.
#include <filesystem>

#include "tools/level/command_line.h"
#include "tools/level/drive.h"
#include "tools/level/fault_text.h"
#include "tools/level/game_folder.h"
#include "tools/level/return_spots.h"

namespace {

std::string wholePath(const std::string& file) {
    std::error_code ignored;
    return std::filesystem::absolute(file, ignored).string();
}

} // namespace

int drawMap(Words words) {
    const auto out = words.takeOption("-o");
    const auto keysFile = words.takeOption("--keys");
    if (const std::string option = words.unknownOption(); !option.empty()) {
        return refuseWords("map", "unknown option " + option + ", or nothing behind it");
    }
    if (!out || words.words.size() != 1) {
        return refuseWords("map", "takes a level file and -o PNG");
    }

    const std::string picture = wholePath(*out);
    KeyFile keys;
    std::string error;
    if (keysFile && !readKeyFile(*keysFile, keys, error)) { return refuseFile(error); }
    std::string file = words.words[0];
    enterGameFolder(file);
    LevelFileReport report;
    if (!startRun(file.c_str(), report)) {
        return refuseFile(file + ":" + explainFault(report.fault));
    }
    const std::vector<Vector3> spots = differentSpots(findReturns());
    const std::vector<LinePoint> line = keysFile ? replay(keys).line : std::vector<LinePoint>();
    if (!writePng(drawCourseMap(level, spots, line), picture, error)) { return refuseFile(error); }
    return allWell;
}
