#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include "platform/regular_file.h"

namespace {

// Returns what keeps the descriptor from being read, an empty text when nothing does.
std::string problemOf(int descriptor) {
    struct _stat64 status = {};
    if (_fstat64(descriptor, &status) != 0) { return std::strerror(errno); }
    return (status.st_mode & _S_IFMT) == _S_IFREG ? "" : "it is not a regular file";
}

} // namespace

// No name opens a pipe that would have to be waited for, and a folder is not opened at all.
File openRegularFile(const std::string& fileName, std::string& why) {
    const int descriptor = _open(fileName.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0) {
        why = std::strerror(errno);
        return nullptr;
    }
    why = problemOf(descriptor);
    File file(why.empty() ? _fdopen(descriptor, "rb") : nullptr);
    if (file != nullptr) { return file; }
    if (why.empty()) { why = std::strerror(errno); }
    _close(descriptor);
    return nullptr;
}
