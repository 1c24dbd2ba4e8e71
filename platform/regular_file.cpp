#include "platform/regular_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

constexpr std::size_t blockSize = 65536; // bytes

// Appends the next block, but reads no further than to `most` bytes in all. Returns false at the
// end of the file and on a failure.
bool readBlock(std::FILE* file, std::size_t most, std::vector<std::uint8_t>& bytes) {
    const std::size_t old = bytes.size();
    bytes.resize(std::min(old + blockSize, most));
    const std::size_t wanted = bytes.size() - old;
    const std::size_t got = std::fread(bytes.data() + old, 1, wanted, file);
    bytes.resize(old + got);
    return got == wanted;
}

} // namespace

bool readRegularFile(const std::string& fileName, std::size_t limit,
                     std::vector<std::uint8_t>& bytes, std::string& why) {
    bytes.clear();
    const File file = openRegularFile(fileName, why);
    if (file == nullptr) { return false; }
    // One byte more than the limit, to see whether the file goes on.
    while (bytes.size() <= limit && readBlock(file.get(), limit + 1, bytes)) {}
    if (std::ferror(file.get()) != 0) {
        why = std::strerror(errno);
    } else if (bytes.size() > limit) {
        bytes.resize(limit);
        why = "it has more than " + std::to_string(limit) + " bytes";
    }
    return why.empty();
}
