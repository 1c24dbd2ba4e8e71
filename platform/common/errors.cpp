#include "platform/common/errors.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <vector>

#include "platform/windows_api.h"

namespace {

struct Errors {
    std::vector<std::string> texts = {"There is no error."}; // the index is the code
    DWORD last = 0;                                          // a code
    bool fatal = false;
    std::set<std::string> logged; // by logErrorOnce
};

Errors errors;

char* newText(const std::string& text) {
    auto* copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (copy != nullptr) { std::memcpy(copy, text.c_str(), text.size() + 1); }
    return copy;
}

} // namespace

void setLastError(const std::string& text) {
    auto known = std::find(errors.texts.begin(), errors.texts.end(), text);
    errors.last = static_cast<DWORD>(known - errors.texts.begin());
    if (known == errors.texts.end()) { errors.texts.push_back(text); }
}

const std::string& lastErrorText() {
    return errors.texts[errors.last];
}

void setFatalError(const std::string& text) {
    setLastError(text);
    errors.fatal = true;
}

bool hadFatalError() {
    return errors.fatal;
}

void logError(const std::string& text) {
    std::fprintf(stderr, "glorbix: %s\n", text.c_str());
}

void logErrorOnce(const std::string& text) {
    if (errors.logged.insert(text).second) { logError(text); }
}

DWORD WINAPI GetLastError() {
    return errors.last;
}

DWORD WINAPI FormatMessageA(DWORD flags, const void*, DWORD error, DWORD, char* buffer, DWORD,
                            va_list*) {
    const DWORD needed = FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM;
    if ((flags & needed) != needed || buffer == nullptr) { return 0; }
    const bool known = error < errors.texts.size();
    const std::string text = known ? errors.texts[error] : "Error " + std::to_string(error) + ".";
    char* copy = newText(text);
    // `buffer` is the address of the caller's pointer.
    std::memcpy(buffer, static_cast<const void*>(&copy), sizeof copy);
    return copy != nullptr ? static_cast<DWORD>(text.size()) : 0;
}

HLOCAL WINAPI LocalFree(HLOCAL memory) {
    std::free(memory);
    return nullptr;
}
