#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/regular_file.h"

namespace {

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
