// The list of levels.
#include "data/level_list.h"
#include "fuzz/input_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput(levelListFile, data, size);
    loadLevelList();
    return 0;
}
