#include "platform/common/regular_file.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t blockSize = 65536; // bytes

// Returns what keeps the descriptor from being read, an empty text when nothing does.
std::string problemOf(int descriptor) {
    struct stat status = {};
    if (fstat(descriptor, &status) != 0) { return std::strerror(errno); }
    if (S_ISDIR(status.st_mode)) { return "it is a folder"; }
    return S_ISREG(status.st_mode) ? "" : "it is not a regular file";
}

} // namespace

File openRegularFile(const std::string& fileName, std::string& why) {
    // O_NONBLOCK keeps open() from waiting for the writer of a pipe.
    const int descriptor = open(fileName.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        why = std::strerror(errno);
        return nullptr;
    }
    why = problemOf(descriptor);
    File file(why.empty() ? fdopen(descriptor, "rb") : nullptr);
    if (file != nullptr) { return file; }
    if (why.empty()) { why = std::strerror(errno); }
    close(descriptor);
    return nullptr;
}

std::optional<std::vector<std::uint8_t>> readRegularFile(const std::string& fileName,
                                                         std::size_t limit, std::string& why) {
    const File file = openRegularFile(fileName, why);
    if (file == nullptr) { return {}; }
    std::vector<std::uint8_t> bytes;
    std::size_t got = blockSize;
    while (got == blockSize && bytes.size() <= limit) {
        const std::size_t old = bytes.size();
        bytes.resize(old + blockSize);
        got = std::fread(bytes.data() + old, 1, blockSize, file.get());
        bytes.resize(old + got);
    }
    if (std::ferror(file.get()) != 0) {
        why = std::strerror(errno);
    } else if (bytes.size() > limit) {
        why = "it is larger than " + std::to_string(limit) + " bytes";
    }
    return why.empty() ? std::optional(std::move(bytes)) : std::nullopt;
}
