// Level files. The pictures of the ground count as there.
#include "data/level_file.h"
#include "fuzz/input_file.h"
#include "sim/marble.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput("level.lev", data, size);
    LevelFileReport report;
    const auto takeAnyTexture = [](Level&, const char*, std::string&) { return true; };
    readLevelFile("level.lev", level, marble, takeAnyTexture, report);
    return 0;
}
