#include <string>

#include <SDL.h>

#include "platform/common/errors.h"
#include "platform/sdl/box_picture.h"
#include "platform/sdl/message_box.h"
#include "platform/sdl/video.h"
#include "platform/sdl/window_handle.h"
#include "platform/windows_api.h"

namespace {

constexpr int okButton = 1; // the result when the box has closed

bool showOwnBox(const BoxContent& content, SDL_Window* over) {
    MessageBox box;
    if (!box.open(content, over)) { return false; }
    box.wait();
    box.close();
    return true;
}

void showSdlBox(const BoxContent& content, SDL_Window* over) {
    const Uint32 icon = content.isError ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    SDL_ShowSimpleMessageBox(icon, content.caption.c_str(), content.text.c_str(), over);
    SDL_ResetKeyboard();
}

} // namespace

// A box without an owner belongs to the game's window too, or the full screen would cover it.
// Without a display the text is on standard error only.
int WINAPI MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    const BoxContent content = {caption != nullptr ? caption : "Error", text != nullptr ? text : "",
                                (type & MB_ICONHAND) != 0};
    logError(content.caption + ": " + content.text);
    if (!startVideo()) { return okButton; }
    const HWND parent = owner != nullptr ? owner : currentWindow();
    SDL_Window* over = parent != nullptr ? parent->sdl : nullptr;
    if (!showOwnBox(content, over)) { showSdlBox(content, over); }
    return okButton;
}
