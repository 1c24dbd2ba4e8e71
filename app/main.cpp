// The entry of the game and its message loop.
#include "app/display.h"
#include "app/window.h"
#include "platform/windows_api.h"
#include "state/game.h"

namespace {

constexpr const char* gameName = "Glorbix"; // window class, menu and title

void restoreDisplay() {
    ChangeDisplaySettingsA(nullptr, 0);
}

bool registerWindowClass(HINSTANCE instance) {
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = GameWindowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconA(instance, "OpenGL Demo"); // only on Windows there is one
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
    windowClass.lpszMenuName = gameName;
    windowClass.lpszClassName = gameName;
    return RegisterClassA(&windowClass) != 0;
}

bool createWindow(HINSTANCE instance) {
    Game.window = CreateWindowExA(0, gameName, gameName, WS_POPUP | WS_CLIPSIBLINGS, CW_USEDEFAULT,
                                  CW_USEDEFAULT, screenWidth, screenHeight, nullptr, nullptr,
                                  instance, nullptr);
    return Game.window != nullptr;
}

// Handles waiting messages and posts a tick whenever there are none, until the quit message.
// Returns its exit code.
int runMessageLoop() {
    MSG message = {};
    for (;;) {
        if (!PeekMessageA(&message, Game.window, 0, 0, PM_REMOVE)) {
            PostMessageA(Game.window, WM_GAME_TICK, 0, 0);
            continue;
        }
        if (message.message == WM_QUIT) { return static_cast<int>(message.wParam); }
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, char*, int showMode) {
    switchDisplayMode();
    if (!registerWindowClass(instance) || !createWindow(instance)) {
        restoreDisplay();
        return 0;
    }
    ShowWindow(Game.window, showMode);
    UpdateWindow(Game.window);
    ShowCursor(FALSE);
    const int exitCode = runMessageLoop();
    restoreDisplay();
    ShowCursor(TRUE);
    return exitCode;
}
