// Level files: their grammar, and why one is refused. The game and the level tool both read them
// here, and each has its own messages for the reasons.
//
// A level file is a sequence of directives in any order, of tokens separated by white space:
//
//   texturefile= BASE      the ground texture: the mip chain BASE_0.bmp to BASE_7.bmp
//   fogcolor= 0xRRGGBB     the colour of fog and sky
//   marblecolor= 0xRRGGBB  the colour of the marble
//   holecount= H           the number of holes, 0 to maxHoles; they are flat until .data
//   .data ... .end         H times x y width depth
//
// It must end directly after its last token: not even a line break may follow. It has at most
// maxTextSize bytes and maxDirectives directives.
#pragma once

#include <array>
#include <string>

#include "data/tokens.h"
#include "sim/level.h"

inline constexpr std::int32_t maxHoles = 100'000;
inline constexpr int maxDirectives = 256; // a level needs each once; each texture is eight pictures

enum class Directive { TextureFile, FogColour, MarbleColour, HoleCount, Data };

// The directives' keys, in the order of Directive.
inline constexpr const char* directiveKeys[] = {
    "texturefile=", "fogcolor=", "marblecolor=", "holecount=", ".data"};
inline constexpr int directiveCount = 5;
inline constexpr const char* endOfHoles = ".end";

inline constexpr const char* keyOf(Directive directive) {
    return directiveKeys[static_cast<int>(directive)];
}

// Why a level file is refused, and where.
struct LevelFault {
    enum class Cause {
        None,
        FileUnreadable,
        FileCutOff,    // the disk fails before its end, or it is longer than maxTextSize
        FileEmpty,     // or nothing but white space
        TrailingSpace, // white space follows the last token
        UnknownToken,  // the token is not a directive's key
        TooManyDirectives,
        TokenTooLong,     // or it holds a zero byte
        ValueMissing,     // the file ends after a key
        NumberMalformed,  // a colour or count that is not an integer in its range
        HoleCountInvalid, // negative or above maxHoles
        HoleMalformed,    // one of a hole's four numbers is missing or malformed
        EndMissing,       // .end does not follow the holes
        PictureUnreadable,
        OutOfMemory,
    };
    Cause cause = Cause::None;
    TextPlace place;
    std::string token; // printable: the offending token; a picture's file name; why the file is
                       // unreadable or cut off
    Directive directive = Directive::TextureFile; // being read, for the causes within one
    std::int32_t holeCount = 0;                   // HoleMalformed, EndMissing: the number of holes
    std::int32_t number = 0;                      // HoleMalformed: numbers of holes read before it
};

// Reads the ground texture of that base name into Level::texturePixels. When it fails, returns
// false, with the name of the first picture that cannot be read in `picture`.
using TextureReader = bool (*)(Level& into, const char* baseName, std::string& picture);

// What was read of a level file.
struct LevelFileReport {
    LevelFault fault;                          // cause None: the level is good
    std::array<int, directiveCount> seen = {}; // how often each directive was read
};

// Reads a level file into the level, calling `readTexture` at each texturefile= directive, and
// builds the ground mesh. Returns false when the file is refused. What was read before the fault
// stays; the mesh is then empty.
bool readLevelFile(const char* fileName, Level& into, Marble& playerMarble,
                   TextureReader readTexture, LevelFileReport& report);
