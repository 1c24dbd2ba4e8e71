// Files of drives.
#include "tools/level/key_file.h"
#include "fuzz/input_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput("drive.keys", data, size);
    KeyFile drive;
    std::string error;
    readKeyFile("drive.keys", drive, error);
    return 0;
}
