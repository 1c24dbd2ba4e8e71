// Pieces of music, as they are handed to the synthesizer.
#include <cstddef>
#include <cstdint>

#include "platform/sdl/synthesizer.h"

// GLib keeps tables for FluidSynth until the program ends. Some versions lose the addresses.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libglib-2.0\n";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    isPlayableMidi({data, size});
    return 0;
}
