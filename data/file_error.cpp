#include "data/file_error.h"

#include <cstdio>

void logFileError(const std::string& fileName, const std::string& why) {
    std::fprintf(stderr, "glorbix: %s: %s\n", fileName.c_str(), why.c_str());
}

void logFileError(const std::string& fileName, const TextPlace& place, const std::string& why) {
    logFileError(fileName + ":" + std::to_string(place.line) + ":" + std::to_string(place.column),
                 why);
}
