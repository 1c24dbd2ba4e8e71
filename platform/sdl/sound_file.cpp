#include "platform/sdl/sound_file.h"

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t blockSize = 65536; // bytes

struct OpenFile {
    int number;

    explicit OpenFile(const std::string& fileName)
        : number(open(fileName.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (number >= 0) { close(number); }
    }
};

// Empty when the file can be read, otherwise the cause.
std::string problemOf(const OpenFile& file) {
    struct stat kind = {};
    if (file.number < 0 || fstat(file.number, &kind) != 0) { return std::strerror(errno); }
    if (S_ISDIR(kind.st_mode)) { return "it is a folder"; }
    return S_ISREG(kind.st_mode) ? "" : "it is not a regular file";
}

} // namespace

std::optional<std::vector<std::uint8_t>> readSoundFile(const std::string& fileName,
                                                       std::size_t limit, std::string& why) {
    const OpenFile file(fileName);
    why = problemOf(file);
    std::vector<std::uint8_t> bytes;
    while (why.empty()) {
        const std::size_t old = bytes.size();
        bytes.resize(old + blockSize);
        const ssize_t got = read(file.number, bytes.data() + old, blockSize);
        if (got < 0) {
            why = std::strerror(errno);
            break;
        }
        bytes.resize(old + static_cast<std::size_t>(got));
        if (got == 0) { return bytes; }
        if (bytes.size() > limit) { why = "it is larger than " + std::to_string(limit) + " bytes"; }
    }
    return {};
}
