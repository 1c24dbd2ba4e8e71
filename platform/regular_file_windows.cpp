#include <cerrno>
#include <cstring>

#include <sys/stat.h>

#include "platform/regular_file.h"

namespace {

// Returns what keeps the file from being read, an empty text when nothing does.
std::string problemOf(std::FILE* file) {
    struct _stat64 status = {};
    if (_fstat64(_fileno(file), &status) != 0) { return std::strerror(errno); }
    return (status.st_mode & _S_IFMT) == _S_IFREG ? "" : "it is not a regular file";
}

} // namespace

// A folder is not opened at all, and no name in one is a pipe that would have to be waited for.
File openRegularFile(const std::string& fileName, std::string& why) {
    File file(std::fopen(fileName.c_str(), "rb"));
    why = file == nullptr ? std::strerror(errno) : problemOf(file.get());
    if (!why.empty()) { file.reset(); }
    return file;
}
