#include "data/file_text.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace {

// Returns the reason, or an empty text when the file may be opened.
std::string reasonNotToRead(const std::string& fileName) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(fileName, error);
    if (status.type() == std::filesystem::file_type::not_found) { return "there is no such file"; }
    if (error) { return error.message(); }
    if (!is_regular_file(status)) { return "it is not a file"; }
    const std::uintmax_t size = std::filesystem::file_size(fileName, error);
    if (error) { return error.message(); }
    return size > maxFileSize ? "it is longer than " + std::to_string(maxFileSize >> 20U) + " MiB"
                              : "";
}

} // namespace

bool readWholeFile(const std::string& fileName, std::string& into, std::string& why) {
    why = reasonNotToRead(fileName);
    if (!why.empty()) { return false; }
    std::ifstream file(fileName, std::ios::in | std::ios::binary);
    into.assign(std::istreambuf_iterator<char>(file), {});
    if (file.is_open() && !file.bad()) { return true; }
    why = "it cannot be opened and read";
    return false;
}
