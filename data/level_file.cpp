#include "data/level_file.h"

#include <cstring>
#include <optional>

#include "data/printable.h"
#include "sim/marble.h"

namespace {

using Cause = LevelFault::Cause;

// The state of one call of readLevelFile.
struct LevelReading {
    TokenReader tokens;
    Level& into;
    Marble& playerMarble;
    TextureReader readTexture;
    LevelFileReport& report;

    bool refuse(Cause cause) {
        report.fault.cause = tokens.cutOff ? Cause::FileCutOff : cause;
        report.fault.place = tokens.place();
        report.fault.token = tokens.cutOff ? tokens.why : printableToken(tokens.lastToken());
        return false;
    }
};

std::optional<Directive> directiveOf(const char* token) {
    for (int i = 0; i < directiveCount; ++i) {
        if (std::strcmp(token, directiveKeys[i]) == 0) { return static_cast<Directive>(i); }
    }
    return {};
}

// Return red, green or blue, 0..255, of a colour written as 0xRRGGBB.
unsigned redOf(std::uint32_t code) {
    return code >> 16 & 255U;
}
unsigned greenOf(std::uint32_t code) {
    return code >> 8 & 255U;
}
unsigned blueOf(std::uint32_t code) {
    return code & 255U;
}

bool readKey(LevelReading& reading, char (&token)[tokenCapacity], Cause whenNothingIsLeft) {
    if (reading.tokens.readToken(token)) { return true; }
    const bool nothing = reading.tokens.lastToken().empty();
    return reading.refuse(nothing ? whenNothingIsLeft : Cause::TokenTooLong);
}

bool refuseNumber(LevelReading& reading) {
    const bool nothing = reading.tokens.lastToken().empty();
    return reading.refuse(nothing ? Cause::ValueMissing : Cause::NumberMalformed);
}

bool takeTexture(LevelReading& reading) {
    char baseName[tokenCapacity];
    if (!readKey(reading, baseName, Cause::ValueMissing)) { return false; }
    std::string picture;
    if (reading.readTexture(reading.into, baseName, picture)) { return true; }
    reading.refuse(Cause::PictureUnreadable);
    reading.report.fault.token = printable(picture);
    return false;
}

bool takeFogColour(LevelReading& reading) {
    Level& into = reading.into;
    if (!reading.tokens.readUnsigned(into.fogColourCode)) { return refuseNumber(reading); }
    into.fogColour[0] = static_cast<float>(redOf(into.fogColourCode) / 255.0);
    into.fogColour[1] = static_cast<float>(greenOf(into.fogColourCode) / 255.0);
    into.fogColour[2] = static_cast<float>(blueOf(into.fogColourCode) / 255.0);
    into.fogColour[3] = 1.0F;
    return true;
}

bool takeMarbleColour(LevelReading& reading) {
    std::uint32_t& code = reading.into.marbleColourCode;
    if (!reading.tokens.readUnsigned(code)) { return refuseNumber(reading); }
    reading.playerMarble.setColour(static_cast<float>(redOf(code)),
                                   static_cast<float>(greenOf(code)),
                                   static_cast<float>(blueOf(code)));
    return true;
}

bool takeHoleCount(LevelReading& reading) {
    std::int32_t count = 0;
    if (!reading.tokens.readInteger(count)) { return refuseNumber(reading); }
    if (count < 0 || count > maxHoles) { return reading.refuse(Cause::HoleCountInvalid); }
    return reading.into.makeHoles(count) || reading.refuse(Cause::OutOfMemory);
}

bool takeHole(LevelReading& reading, Hole& hole) {
    for (float* number : {&hole.x, &hole.y, &hole.width, &hole.depth}) {
        if (!reading.tokens.readFloat(*number)) { return reading.refuse(Cause::HoleMalformed); }
        ++reading.report.fault.number;
    }
    return true;
}

bool takeHoles(LevelReading& reading) {
    reading.report.fault.number = 0;
    reading.report.fault.holeCount = reading.into.holeCount;
    for (Hole& hole : reading.into.allHoles()) {
        if (!takeHole(reading, hole)) { return false; }
    }
    char token[tokenCapacity];
    const bool ended = reading.tokens.readToken(token) && std::strcmp(token, endOfHoles) == 0;
    return ended || reading.refuse(Cause::EndMissing);
}

bool takeDirective(LevelReading& reading, Directive directive) {
    reading.report.fault.directive = directive;
    ++reading.report.seen[static_cast<std::size_t>(directive)];
    switch (directive) {
    case Directive::TextureFile: return takeTexture(reading);
    case Directive::FogColour: return takeFogColour(reading);
    case Directive::MarbleColour: return takeMarbleColour(reading);
    case Directive::HoleCount: return takeHoleCount(reading);
    case Directive::Data: return takeHoles(reading);
    }
    return false;
}

// Reads a token that begins a directive. White space at the end of the file is reported at the
// token before it.
bool readDirectiveKey(LevelReading& reading, char (&token)[tokenCapacity]) {
    const std::size_t before = reading.tokens.last;
    const bool first = reading.tokens.next == 0;
    if (readKey(reading, token, first ? Cause::FileEmpty : Cause::TrailingSpace)) { return true; }
    if (reading.report.fault.cause == Cause::TrailingSpace) {
        reading.tokens.last = before;
        reading.report.fault.place = reading.tokens.place();
    }
    return false;
}

// Reads directives until the file ends directly after one. When anything follows a directive, even
// white space alone, another directive must come.
bool takeDirectives(LevelReading& reading) {
    int count = 0;
    do {
        char token[tokenCapacity];
        if (!readDirectiveKey(reading, token)) { return false; }
        const std::optional<Directive> directive = directiveOf(token);
        if (!directive) { return reading.refuse(Cause::UnknownToken); }
        if (++count > maxDirectives) { return reading.refuse(Cause::TooManyDirectives); }
        if (!takeDirective(reading, *directive)) { return false; }
    } while (!reading.tokens.atEnd());
    return true;
}

} // namespace

bool readLevelFile(const char* fileName, Level& into, Marble& playerMarble,
                   TextureReader readTexture, LevelFileReport& report) {
    into.clearGround();
    LevelReading reading = {{}, into, playerMarble, readTexture, report};
    if (!reading.tokens.open(fileName)) {
        reading.refuse(Cause::FileUnreadable);
        report.fault.token = reading.tokens.why;
        return false;
    }
    if (!takeDirectives(reading)) { return false; }
    return into.buildMesh() || reading.refuse(Cause::OutOfMemory);
}
