#include <string>

#include <SDL.h>

#include "platform/sdl/errors.h"
#include "platform/sdl/window.h"
#include "platform/windows_api.h"

namespace {

constexpr int okButton = 1; // what the box answers when its one button is pressed

} // namespace

// The box belongs to the game's window even where it has no owner, or it would open behind the full
// screen. Keys let go while it was open never reached the game, hence the reset.
int WINAPI MessageBoxA(HWND owner, const char* text, const char* caption, UINT type) {
    const std::string words = text ? text : "";
    const std::string title = caption ? caption : "Error"; // the title of a box without one
    complain(title + ": " + words);
    const HWND parent = owner ? owner : currentWindow();
    const Uint32 icon = (type & MB_ICONHAND) ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    SDL_ShowSimpleMessageBox(icon, title.c_str(), words.c_str(), parent ? parent->sdl : nullptr);
    if (SDL_WasInit(SDL_INIT_VIDEO)) SDL_ResetKeyboard();
    return okButton;
}
