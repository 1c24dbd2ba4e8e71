// glorbix-level new: a small level to start from.
#include <fstream>
#include <sstream>

#include "data/asset_files.h"
#include "data/level_file.h"
#include "tools/level/command_line.h"

namespace {

// Returns a level with a mound and two wells to steer around. It must not end with a line break.
std::string smallLevel() {
    std::ostringstream text;
    text << keyOf(Directive::TextureFile) << ' ' << groundFolder << "/tiles\n"
         << keyOf(Directive::FogColour) << " 0x3a75ce\n"
         << keyOf(Directive::MarbleColour) << " 0x001080\n"
         << keyOf(Directive::HoleCount) << " 3\n\n"
         << keyOf(Directive::Data) << "\n"
         << "     0  -4800   200   -80\n"
         << "  -150  -3000    60   150\n"
         << "   150      0    60   150\n"
         << endOfHoles;
    return text.str();
}

} // namespace

int newLevel(Arguments arguments) {
    const bool force = arguments.takeFlag("--force");
    if (const std::string option = arguments.unknownOption(); !option.empty()) {
        return usageError("new", "unknown option " + option);
    }
    if (arguments.values.size() != 1) { return usageError("new", "expected one file"); }
    const std::string& file = arguments.values[0];
    if (const std::string why = reasonNotToWrite(file, force); !why.empty()) {
        return failure(why);
    }
    std::ofstream out(file, std::ios::binary);
    out << smallLevel();
    out.close();
    return out ? exitOk : failure(file + " cannot be written");
}
