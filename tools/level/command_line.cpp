#include "tools/level/command_line.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "data/printable.h"

bool Arguments::takeFlag(const std::string& flag) {
    return std::erase(values, flag) > 0;
}

std::optional<std::string> Arguments::takeOption(const std::string& option) {
    const auto found = std::find(values.begin(), values.end(), option);
    if (found == values.end() || found + 1 == values.end()) { return {}; }
    std::string value = *(found + 1);
    values.erase(found, found + 2);
    return value;
}

std::string Arguments::unknownOption() const {
    const auto found = std::find_if(values.begin(), values.end(), [](const std::string& value) {
        return value.size() > 1 && value[0] == '-';
    });
    return found == values.end() ? std::string() : *found;
}

std::string reasonNotToWrite(const std::string& file, bool force) {
    std::error_code ignored;
    const std::filesystem::file_status there = std::filesystem::status(file, ignored);
    if (!exists(there)) { return {}; }
    if (!is_regular_file(there)) { return file + " is not a regular file"; }
    return force ? "" : file + " exists already; --force replaces it";
}

int usageError(const std::string& command, const std::string& why) {
    std::fprintf(stderr, "glorbix-level %s: %s (see glorbix-level %s --help)\n", command.c_str(),
                 printable(why).c_str(), command.c_str());
    return exitUsage;
}

int failure(const std::string& why) {
    std::fprintf(stderr, "glorbix-level: %s\n", printable(why).c_str());
    return exitUsage;
}
