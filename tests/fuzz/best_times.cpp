// The table of best times: read, and if it is good, saved and read again.
#include <cstdlib>

#include "data/best_times.h"
#include "fuzz/input_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput(bestTimesFile, data, size);
    if (readBestTimes() && !(saveBestTimes() && readBestTimes())) { std::abort(); }
    return 0;
}
