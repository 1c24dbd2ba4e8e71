// The metrics of the font.
#include "data/font.h"
#include "fuzz/input_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput("font.dat", data, size);
    font.readMetrics("font.dat");
    font.textWidth("\"A run\n over all levels!\xFF");
    return 0;
}
