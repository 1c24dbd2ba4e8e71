#include <string>

#include "platform/common/errors.h"
#include "platform/web/page_calls.h"
#include "platform/windows_api.h"

int WINAPI MessageBoxA(HWND, const char* text, const char* caption, UINT type) {
    constexpr int okButton = 1; // the result when the box has closed
    const std::string shownCaption = caption != nullptr ? caption : "Error";
    const std::string shownText = text != nullptr ? text : "";
    logError(shownCaption + ": " + shownText);
    pageShowBox(shownCaption.c_str(), shownText.c_str(), (type & MB_ICONHAND) != 0 ? 1 : 0);
    return okButton;
}
