// glorbix-level new: a small level to start from.
#include <filesystem>
#include <fstream>

#include "tools/level/command_line.h"

namespace {

// Two wells to go round, and a mound to see them from. No line break at the end.
constexpr const char* smallLevel = "texturefile= graphics/ground/grid\n"
                                   "fogcolor= 0x1b2450\n"
                                   "marblecolor= 0xffc832\n"
                                   "holecount= 3\n"
                                   "\n"
                                   ".data\n"
                                   "     0  -4800   200   -80\n"
                                   "  -150  -3000    60   150\n"
                                   "   150      0    60   150\n"
                                   ".end";

} // namespace

int newLevel(Words words) {
    const bool force = words.takeFlag("--force");
    if (const std::string option = words.unknownOption(); !option.empty()) {
        return refuseWords("new", "unknown option " + option);
    }
    if (words.words.size() != 1) { return refuseWords("new", "takes one file"); }
    const std::string& file = words.words[0];
    std::error_code ignored;
    const std::filesystem::file_status there = std::filesystem::status(file, ignored);
    if (exists(there) && !is_regular_file(there)) { return refuseFile(file + " is not a file"); }
    if (!force && exists(there)) {
        return refuseFile(file + " is there already; --force replaces it");
    }
    std::ofstream out(file, std::ios::binary);
    out << smallLevel;
    out.close();
    return out ? allWell : refuseFile(file + " cannot be written");
}
