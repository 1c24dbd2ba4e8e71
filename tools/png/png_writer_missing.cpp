// A build without libpng.
#include "tools/png/png_writer.h"

namespace {

bool cannotWrite(const std::string& file, std::string& error) {
    error = file + ": this program was built without libpng, so it cannot write PNG files";
    return false;
}

} // namespace

bool writePngRgba(const std::string& file, int, int, std::span<const std::uint8_t>,
                  std::string& error) {
    return cannotWrite(file, error);
}

bool writePngPalette(const std::string& file, int, int, std::span<const std::uint8_t>,
                     std::span<const std::uint8_t>, std::string& error) {
    return cannotWrite(file, error);
}
