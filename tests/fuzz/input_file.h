// The file that a reader under test reads: made anew for each input, in a folder of the process.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

// Writes the input to a file of that name in the working directory, which is a new folder.
inline void writeInput(const std::string& fileName, const std::uint8_t* data, std::size_t size) {
    namespace fs = std::filesystem;
    static std::string folder;
    if (folder.empty()) {
        folder = fs::temp_directory_path() / "glorbix_fuzz_XXXXXX";
        fs::current_path(mkdtemp(folder.data()));
        std::atexit([] { fs::remove_all(folder); });
    }
    const fs::path path(fileName);
    if (path.has_parent_path()) { fs::create_directories(path.parent_path()); }
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}
