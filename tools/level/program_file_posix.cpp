#include <system_error>

#include "tools/level/program_file.h"

std::filesystem::path programFile() {
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored);
}
