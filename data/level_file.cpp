#include "data/level.h"

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <new>

#include <GL/gl.h>

#include "app/game.h"
#include "data/mip_chain.h"
#include "data/tokens.h"
#include "sim/marble.h"

namespace {

constexpr MipChain groundChain = {
    .levels = groundTextureLevels,
    .size = groundTextureSize,
    .texture = groundTexture,
    .internalFormat = 3, // components
    .wrap = GL_REPEAT,
    .magnification = GL_LINEAR,
    .minification = GL_LINEAR_MIPMAP_LINEAR,
};

// The texture repeats every 5 1/3 columns and every 4 rows.
constexpr double texturePerColumn = 0.1875;
constexpr double texturePerRow = 0.25;

enum class Directive { TextureFile, FogColour, MarbleColour, HoleCount, Data, Unknown };

struct DirectiveKey {
    const char* key;
    Directive directive;
};

constexpr DirectiveKey directiveKeys[] = {
    {"texturefile=", Directive::TextureFile},
    {"fogcolor=", Directive::FogColour},
    {"marblecolor=", Directive::MarbleColour},
    {"holecount=", Directive::HoleCount},
    {".data", Directive::Data},
};

Directive directiveOf(const char* token) {
    for (const DirectiveKey& entry : directiveKeys) {
        if (std::strcmp(token, entry.key) == 0) return entry.directive;
    }
    return Directive::Unknown;
}

// Reports why the level is refused; false, for the caller to pass on.
bool refuse(const char* text) {
    MessageBoxA(nullptr, text, fileErrorCaption, MB_OK);
    return false;
}

bool refuseForMemory() {
    return refuse("out of memory");
}

bool refuseMissingFile(const char* fileName) {
    char text[2 * tokenCapacity];
    std::snprintf(text, sizeof text, "%sfile not found", fileName);
    return refuse(text);
}

bool refuseUnknownToken(const char* fileName, const char* token) {
    char text[3 * tokenCapacity];
    std::snprintf(text, sizeof text, "%s contains a unknown token%s", fileName, token);
    return refuse(text);
}

// Red, green or blue, 0..255, of a colour written as 0xRRGGBB.
unsigned redOf(std::uint32_t code) {
    return code >> 16 & 255U;
}
unsigned greenOf(std::uint32_t code) {
    return code >> 8 & 255U;
}
unsigned blueOf(std::uint32_t code) {
    return code & 255U;
}

bool readTexture(TokenReader& reader, Level& into) {
    char baseName[tokenCapacity];
    if (!reader.readToken(baseName)) return false;
    if (!readMipChain(groundChain, baseName, into.texturePixels[0])) return false;
    const GLuint name = groundTexture;
    GLboolean resident = GL_FALSE;
    if (glAreTexturesResident(1, &name, &resident) == GL_TRUE) glDeleteTextures(1, &name);
    uploadMipChain(groundChain, into.texturePixels[0]);
    return true;
}

bool readFogColour(TokenReader& reader, Level& into) {
    if (!reader.readUnsigned(into.fogColourCode)) return false;
    into.fogColour[0] = static_cast<float>(redOf(into.fogColourCode) / 255.0);
    into.fogColour[1] = static_cast<float>(greenOf(into.fogColourCode) / 255.0);
    into.fogColour[2] = static_cast<float>(blueOf(into.fogColourCode) / 255.0);
    into.fogColour[3] = 1.0F;
    return true;
}

bool readMarbleColour(TokenReader& reader, Level& into, Marble& playerMarble) {
    if (!reader.readUnsigned(into.marbleColourCode)) return false;
    const std::uint32_t code = into.marbleColourCode;
    playerMarble.setColour(static_cast<float>(redOf(code)), static_cast<float>(greenOf(code)),
                           static_cast<float>(blueOf(code)));
    return true;
}

// A hole that the file does not give stays flat.
bool readHoleCount(TokenReader& reader, Level& into) {
    std::int32_t count = 0;
    if (!reader.readInteger(count)) return false;
    into.holeCount = 0;
    into.holes.reset();
    if (count < 0 || count > mostHoles) return refuseForMemory();
    into.holes.reset(new (std::nothrow) Hole[static_cast<std::size_t>(count)]);
    if (!into.holes) return refuseForMemory();
    into.holeCount = count;
    return true;
}

bool readHoles(TokenReader& reader, Level& into) {
    for (Hole& hole : into.allHoles()) {
        if (!reader.readFloat(hole.x) || !reader.readFloat(hole.y) ||
            !reader.readFloat(hole.width) || !reader.readFloat(hole.depth)) {
            return false;
        }
    }
    char token[tokenCapacity];
    if (reader.readToken(token) && std::strcmp(token, ".end") == 0) return true;
    return refuse("expected .end");
}

bool readDirective(TokenReader& reader, const char* fileName, const char* token, Level& into,
                   Marble& playerMarble) {
    switch (directiveOf(token)) {
    case Directive::TextureFile: return readTexture(reader, into);
    case Directive::FogColour: return readFogColour(reader, into);
    case Directive::MarbleColour: return readMarbleColour(reader, into, playerMarble);
    case Directive::HoleCount: return readHoleCount(reader, into);
    case Directive::Data: return readHoles(reader, into);
    case Directive::Unknown: return refuseUnknownToken(fileName, token);
    }
    return refuse("this should never appear");
}

// Takes directives up to the one that the file ends directly behind. When anything follows it,
// even white space alone, there must be a further one.
bool readDirectives(TokenReader& reader, const char* fileName, Level& into, Marble& playerMarble) {
    do {
        char token[tokenCapacity];
        if (!reader.readToken(token)) return false;
        if (!readDirective(reader, fileName, token, into, playerMarble)) return false;
    } while (!reader.atEnd());
    return true;
}

bool allocateMesh(Level& into) {
    into.groundPoints.reset(new (std::nothrow) Vector3[groundVertices]);
    if (!into.groundPoints) return refuseForMemory();
    into.groundScreen.reset(new (std::nothrow) Vector3[groundVertices]);
    if (!into.groundScreen) return refuseForMemory();
    into.groundTexCoords.reset(new (std::nothrow) Vector3[groundVertices]);
    if (!into.groundTexCoords) return refuseForMemory();
    return true;
}

void buildMesh(Level& into) {
    for (int c = 0; c < groundColumns; ++c) {
        for (int r = 0; r < groundRows; ++r) {
            const auto index = static_cast<std::size_t>(r * groundColumns + c);
            const int column = c - groundCentreColumn;
            const int row = r - groundCentreRow;
            const float x = static_cast<float>(column * groundSpacing);
            const float y = static_cast<float>(row * groundSpacing);
            into.groundPoints[index].set(x, y, into.heightAt(x, y));
            into.groundTexCoords[index][0] = static_cast<float>(column * texturePerColumn);
            into.groundTexCoords[index][1] = static_cast<float>(row * texturePerRow);
        }
    }
}

} // namespace

Level::Level() = default;

Level::~Level() = default;

bool Level::load(const char* fileName, Marble& playerMarble) {
    groundPoints.reset();
    groundScreen.reset();
    groundTexCoords.reset();
    holes.reset();
    holeCount = 0;

    TokenReader reader;
    if (!reader.open(fileName)) return refuseMissingFile(fileName);
    if (!readDirectives(reader, fileName, *this, playerMarble)) return false;
    if (!allocateMesh(*this)) return false;
    buildMesh(*this);
    return true;
}
