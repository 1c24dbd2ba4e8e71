#include "tools/level/fault_text.h"

namespace {

using Cause = LevelFault::Cause;

std::string quote(const std::string& text) {
    return "\"" + text + "\"";
}

std::string butFound(const LevelFault& fault) {
    return fault.token.empty() ? ", but the file ends" : ", not " + quote(fault.token);
}

std::string unknownToken(const std::string& token) {
    for (const char* key : directiveKeys) {
        if (token.starts_with(key)) { return "there must be a blank after " + quote(key); }
    }
    return "unknown word " + quote(token) +
           ", expected texturefile=, fogcolor=, marblecolor=, holecount= or .data";
}

std::string malformedNumber(const LevelFault& fault) {
    const bool isCount = fault.directive == Directive::HoleCount;
    const std::string range = isCount ? "0 to " + std::to_string(maxHoles) : "0 to 0xffffffff";
    return "expected a whole number from " + range + " after " + quote(keyOf(fault.directive)) +
           butFound(fault);
}

std::string malformedHole(const LevelFault& fault) {
    return "expected number " + std::to_string(fault.number + 1) + " of the " +
           std::to_string(4 * fault.holeCount) + " of " + std::to_string(fault.holeCount) +
           " holes (x y width depth)" + butFound(fault);
}

std::string missingEnd(const LevelFault& fault) {
    return "expected .end after " + std::to_string(fault.holeCount) + " holes" + butFound(fault) +
           "; does holecount= agree with the data?";
}

std::string describe(const LevelFault& fault) {
    switch (fault.cause) {
    case Cause::None: return "nothing is wrong";
    case Cause::FileUnreadable: return "the file cannot be read: " + fault.token;
    case Cause::FileCutOff: return "the rest of the file cannot be read: " + fault.token;
    case Cause::FileEmpty: return "the file is empty";
    case Cause::TrailingSpace:
        return "the file goes on with a line break or a blank: the game refuses a level that "
               "does not end directly after its last word";
    case Cause::UnknownToken: return unknownToken(fault.token);
    case Cause::TooManyDirectives:
        return "this is one more than " + std::to_string(maxDirectives) + " directives";
    case Cause::TokenTooLong: return "a word longer than 255 characters, or with a zero byte in it";
    case Cause::ValueMissing: return "the file ends after " + quote(keyOf(fault.directive));
    case Cause::NumberMalformed:
    case Cause::HoleCountInvalid: return malformedNumber(fault);
    case Cause::HoleMalformed: return malformedHole(fault);
    case Cause::EndMissing: return missingEnd(fault);
    case Cause::PictureUnreadable:
        return "the picture " + fault.token + " is missing, or the game cannot use it";
    case Cause::OutOfMemory: return "there is not enough memory for the level";
    }
    return {};
}

} // namespace

std::string faultMessage(const LevelFault& fault) {
    return std::to_string(fault.place.line) + ":" + std::to_string(fault.place.column) + ": " +
           describe(fault);
}

std::vector<std::string> directiveWarnings(const LevelFileReport& report) {
    std::vector<std::string> warnings;
    for (int i = 0; i < directiveCount; ++i) {
        const int times = report.seen[static_cast<std::size_t>(i)];
        const std::string key = quote(directiveKeys[i]);
        if (times == 0) { warnings.push_back(key + " is missing"); }
        if (times > 1) { warnings.push_back(key + " occurs more than once; the last counts"); }
    }
    return warnings;
}
