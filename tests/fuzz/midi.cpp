// Pieces of music, as they are handed to the synthesizer.
#include <cstddef>
#include <cstdint>

#include "platform/sdl/synthesizer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    isPlayableMidi({data, size});
    return 0;
}
