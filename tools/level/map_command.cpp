// glorbix-level map: draws a course from above.
#include "tools/level/command_line.h"
#include "tools/level/drive.h"
#include "tools/level/fault_text.h"
#include "tools/level/game_folder.h"
#include "tools/level/return_spots.h"

int drawMap(Arguments arguments) {
    const bool force = arguments.takeFlag("--force");
    const auto out = arguments.takeOption("-o");
    const auto keysFile = arguments.takeOption("--keys");
    if (const std::string option = arguments.unknownOption(); !option.empty()) {
        return usageError("map", "unknown option " + option + ", or no value after it");
    }
    if (!out || arguments.values.size() != 1) {
        return usageError("map", "expected a level file and -o PNG");
    }

    const std::string picture = absolutePath(*out);
    if (const std::string why = reasonNotToWrite(picture, force); !why.empty()) {
        return failure(why);
    }
    KeyFile keys;
    std::string error;
    if (keysFile && !readKeyFile(*keysFile, keys, error)) { return failure(error); }
    std::string file = arguments.values[0];
    enterGameFolder(file);
    LevelFileReport report;
    if (!startRun(file.c_str(), report)) {
        return failure(file + ":" + faultMessage(report.fault));
    }
    const std::vector<Vector3> spots = distinctSpots(findReturnSpots());
    const std::vector<LinePoint> line = keysFile ? replay(keys).line : std::vector<LinePoint>();
    if (!writePng(drawCourseMap(level, spots, line), picture, error)) { return failure(error); }
    return exitOk;
}
