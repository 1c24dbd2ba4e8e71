#include "data/level_list.h"

#include <cstddef>
#include <cstring>
#include <new>

#include "data/file_error.h"
#include "data/tokens.h"
#include "state/game.h"

namespace {

static_assert(LEVEL_NAME_CAPACITY == tokenCapacity);

// A greater count is a mistake of the author; nothing is allocated for it.
constexpr std::int32_t maxLevels = 100'000;

bool allocateList(std::int32_t count) {
    const auto n = static_cast<std::size_t>(count);
    Game.levelTimes.reset(new (std::nothrow) float[n]);
    if (Game.levelTimes == nullptr) { return false; }
    Game.levelFiles.reset(new (std::nothrow) std::unique_ptr<char[]>[n]);
    return Game.levelFiles != nullptr;
}

bool readLevelName(TokenReader& reader, std::unique_ptr<char[]>& name) {
    name.reset(new (std::nothrow) char[LEVEL_NAME_CAPACITY]);
    char token[tokenCapacity];
    if (name == nullptr || !reader.readToken(token)) { return false; }
    std::memcpy(name.get(), token, sizeof token);
    return true;
}

bool readList(TokenReader& reader) {
    if (!reader.readInteger(Game.levelCount)) { return false; }
    if (Game.levelCount <= 0 || Game.levelCount > maxLevels) { return false; }
    if (!allocateList(Game.levelCount)) { return false; }
    const auto count = static_cast<std::size_t>(Game.levelCount);
    for (std::size_t i = 0; i < count; ++i) {
        Game.levelTimes[i] = levelTime;
        if (!readLevelName(reader, Game.levelFiles[i])) { return false; }
    }
    return reader.atEnd();
}

} // namespace

bool loadLevelList() {
    TokenReader reader;
    if (openOrLog(reader, levelListFile) && readList(reader)) { return true; }
    Game.levelCount = 0;
    Game.levelTimes.reset();
    Game.levelFiles.reset();
    return false;
}
