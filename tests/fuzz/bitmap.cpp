// Bitmap files, by the functions of the SDL provider.
#include "app/bitmap_file.h"
#include "fuzz/input_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput("picture.bmp", data, size);
    constexpr int side = 8;
    static std::uint8_t pixels[3 * side * side];
    readBitmap("picture.bmp", pixels, sizeof pixels);
    readBitmapOfSize("picture.bmp", side, side, pixels);
    return 0;
}
