#include "tools/level/keys.h"

namespace {

struct KeyName {
    const char* name;
    Keys key;
};

constexpr KeyName keyNames[] = {
    {"up", upKey}, {"down", downKey}, {"left", leftKey}, {"right", rightKey}, {"shift", turboKey},
};

constexpr const char* noKeyName = "-";

} // namespace

std::string keysText(Keys keys) {
    std::string text;
    for (const KeyName& entry : keyNames) {
        if ((keys & entry.key) == 0) { continue; }
        if (!text.empty()) { text += ' '; }
        text += entry.name;
    }
    return text.empty() ? noKeyName : text;
}

bool addKey(const std::string& name, Keys& keys) {
    if (name == noKeyName) { return true; }
    for (const KeyName& entry : keyNames) {
        if (name != entry.name) { continue; }
        keys |= entry.key;
        return true;
    }
    return false;
}
