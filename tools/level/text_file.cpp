#include "tools/level/text_file.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace {

constexpr std::uintmax_t mostBytes = 16U << 20U;

std::string whyNotReadable(const std::string& fileName) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(fileName, error);
    if (error || !exists(status)) {
        return error ? error.message() : "there is no such file";
    }
    if (!is_regular_file(status)) {
        return "it is not a file";
    }
    const std::uintmax_t size = std::filesystem::file_size(fileName, error);
    if (error) {
        return error.message();
    }
    return size > mostBytes ? "it is longer than 16 MiB" : "";
}

} // namespace

bool readTextFile(const std::string& fileName, std::string& text, std::string& error) {
    std::string why = whyNotReadable(fileName);
    if (why.empty()) {
        std::ifstream file(fileName, std::ios::binary);
        text.assign(std::istreambuf_iterator<char>(file), {});
        if (file.is_open() && !file.bad()) {
            return true;
        }
        why = "it cannot be opened and read";
    }
    error = fileName + ": cannot be read: " + why;
    return false;
}
