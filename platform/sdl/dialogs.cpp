#include <string>

#include <SDL.h>

#include "platform/sdl/box_picture.h"
#include "platform/sdl/errors.h"
#include "platform/sdl/message_box.h"
#include "platform/sdl/video.h"
#include "platform/sdl/window_handle.h"
#include "platform/windows_api.h"

namespace {

constexpr int okButton = 1; // what the box answers when its one button is pressed

bool showOwnBox(const BoxContent& words, SDL_Window* over) {
    MessageBox box;
    if (!box.open(words, over)) { return false; }
    box.wait();
    box.close();
    return true;
}

void showBoxOfSdl(const BoxContent& words, SDL_Window* over) {
    const Uint32 icon = words.isError ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    SDL_ShowSimpleMessageBox(icon, words.caption.c_str(), words.text.c_str(), over);
    SDL_ResetKeyboard();
}

} // namespace

// A box without an owner belongs to the game's window too, or it would open behind the full screen.
// Without a display its text is on standard error only.
int WINAPI MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    const BoxContent words = {caption ? caption : "Error", text ? text : "",
                              (type & MB_ICONHAND) != 0};
    logError(words.caption + ": " + words.text);
    if (!startVideo()) { return okButton; }
    const HWND parent = owner ? owner : currentWindow();
    SDL_Window* over = parent ? parent->sdl : nullptr;
    if (!showOwnBox(words, over)) { showBoxOfSdl(words, over); }
    return okButton;
}
