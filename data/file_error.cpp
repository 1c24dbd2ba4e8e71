#include "data/file_error.h"

#include <cstdio>

#include "data/printable.h"

bool openOrLog(TokenReader& reader, const char* fileName) {
    if (reader.open(fileName)) { return true; }
    logFileError(fileName, "it cannot be read: " + reader.why);
    return false;
}

void logFileError(const std::string& fileName, const std::string& why) {
    std::fprintf(stderr, "glorbix: %s: %s\n", printable(fileName).c_str(), why.c_str());
}

void logFileError(const std::string& fileName, const TextPlace& place, const std::string& why) {
    logFileError(fileName + ":" + std::to_string(place.line) + ":" + std::to_string(place.column),
                 why);
}
