#include "tools/level/fault_text.h"

namespace {

using Cause = LevelFault::Cause;

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

std::string keyOf(Directive directive) {
    return directiveKeys[static_cast<int>(directive)];
}

std::string butFound(const LevelFault& fault) {
    return fault.token.empty() ? ", but the file ends" : ", not " + quoted(fault.token);
}

std::string explainUnknown(const std::string& token) {
    for (const char* key : directiveKeys) {
        if (token.starts_with(key)) { return "there must be a blank after " + quoted(key); }
    }
    return "unknown word " + quoted(token) +
           ", expected texturefile=, fogcolor=, marblecolor=, holecount= or .data";
}

std::string explainNumber(const LevelFault& fault) {
    const bool isCount = fault.directive == Directive::HoleCount;
    const std::string range = isCount ? "0 to " + std::to_string(mostHoles) : "0 to 0xffffffff";
    return "expected a whole number from " + range + " after " + quoted(keyOf(fault.directive)) +
           butFound(fault);
}

std::string explainHole(const LevelFault& fault) {
    return "expected number " + std::to_string(fault.number + 1) + " of the " +
           std::to_string(4 * fault.holeCount) + " of " + std::to_string(fault.holeCount) +
           " holes (x y width depth)" + butFound(fault);
}

std::string explainEnd(const LevelFault& fault) {
    return "expected .end after " + std::to_string(fault.holeCount) + " holes" + butFound(fault) +
           "; does holecount= agree with the data?";
}

std::string explain(const LevelFault& fault) {
    switch (fault.cause) {
    case Cause::None: return "nothing is wrong";
    case Cause::FileUnreadable: return "the file cannot be read: " + fault.token;
    case Cause::FileEmpty: return "the file is empty";
    case Cause::TrailingSpace:
        return "the file goes on with a line break or a blank: the game takes a level only when it "
               "ends directly after its last word";
    case Cause::UnknownToken: return explainUnknown(fault.token);
    case Cause::TokenTooLong: return "longer than 255 characters, or with a zero byte in it";
    case Cause::ValueMissing: return "the file ends after " + quoted(keyOf(fault.directive));
    case Cause::NumberMalformed:
    case Cause::HoleCountInvalid: return explainNumber(fault);
    case Cause::HoleMalformed: return explainHole(fault);
    case Cause::EndMissing: return explainEnd(fault);
    case Cause::PictureUnreadable:
        return "the picture " + fault.token + " is missing, or not one that the game takes";
    case Cause::OutOfMemory: return "there is not enough memory for the level";
    }
    return {};
}

} // namespace

std::string explainFault(const LevelFault& fault) {
    return std::to_string(fault.place.line) + ":" + std::to_string(fault.place.column) + ": " +
           explain(fault);
}

std::vector<std::string> findOddDirectives(const LevelFileReport& report) {
    std::vector<std::string> odd;
    for (int i = 0; i < directiveCount; ++i) {
        const int times = report.seen[static_cast<std::size_t>(i)];
        const std::string key = quoted(directiveKeys[i]);
        if (times == 0) { odd.push_back(key + " is missing"); }
        if (times > 1) { odd.push_back(key + " occurs more than once; the last counts"); }
    }
    return odd;
}
