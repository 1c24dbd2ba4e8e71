#include "platform/sdl_machine.h"

#include "platform/sdl/window.h"

std::optional<Uint64> stoppedClock;
std::optional<SDL_Rect> desktopRoom;
std::vector<UINT> heard;
std::map<UINT, LRESULT> answers;

// The linker takes these two instead of SDL's.
Uint64 SDLCALL SDL_GetTicks64() { return stoppedClock.value_or(SDL_GetTicks()); }

int SDLCALL SDL_GetDisplayUsableBounds(int display, SDL_Rect* room) {
    if (!desktopRoom) {
        return SDL_GetDisplayBounds(display, room);
    }
    *room = *desktopRoom;
    return desktopRoom->w > 0 ? 0 : -1;
}

LRESULT CALLBACK testProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    heard.push_back(message);
    const auto answer = answers.find(message);
    return answer != answers.end() ? answer->second
                                   : DefWindowProcA(window, message, wParam, lParam);
}

void setDisplay(const char* driver) {
    unsetenv("DISPLAY");
    unsetenv("WAYLAND_DISPLAY");
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    if (*driver) {
        setenv("SDL_VIDEODRIVER", driver, 1);
    } else {
        unsetenv("SDL_VIDEODRIVER");
    }
}

HWND openTestWindow() {
    if (!SDL_getenv("SDL_VIDEODRIVER")) {
        setDisplay("offscreen");
    }
    WNDCLASSA windowClass = {};
    windowClass.lpszClassName = "Test";
    windowClass.lpfnWndProc = testProcedure;
    RegisterClassA(&windowClass);
    return CreateWindowExA(0, "Test", "A title", WS_POPUP, 0, 0, 640, 480, nullptr, nullptr,
                           nullptr, nullptr);
}

void closeTestWindow() {
    answers.clear();
    DefWindowProcA(currentWindow(), WM_CLOSE, 0, 0);
    heard.clear();
}

SDL_Window* sdlWindow() { return currentWindow() ? currentWindow()->sdl : nullptr; }

void pushKey(SDL_Scancode place, int modifiers, bool repeat) {
    SDL_Event event = {};
    event.type = SDL_KEYDOWN;
    event.key.repeat = repeat;
    event.key.keysym = {place, SDL_GetKeyFromScancode(place), static_cast<Uint16>(modifiers), 0};
    SDL_PushEvent(&event);
    event.type = SDL_KEYUP;
    SDL_PushEvent(&event);
}

void pushWindowEvent(SDL_WindowEventID what) {
    SDL_Event event = {};
    event.type = SDL_WINDOWEVENT;
    event.window.windowID = SDL_GetWindowID(sdlWindow());
    event.window.event = static_cast<Uint8>(what);
    SDL_PushEvent(&event);
}

void pushEvent(SDL_EventType type) {
    SDL_Event event = {};
    event.type = type;
    SDL_PushEvent(&event);
}

void hold(SDL_Scancode place, bool down) {
    const_cast<Uint8*>(SDL_GetKeyboardState(nullptr))[place] = down ? 1 : 0;
}

std::vector<MSG> messagesNow() {
    constexpr std::size_t atMost = 20'000; // a queue that gives the same for ever ends here
    std::vector<MSG> messages;
    MSG message = {};
    while (messages.size() < atMost && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        messages.push_back(message);
        DispatchMessageA(&message);
    }
    return messages;
}

std::vector<UINT> numbersNow() {
    std::vector<UINT> numbers;
    for (const MSG& message : messagesNow()) {
        numbers.push_back(message.message);
    }
    return numbers;
}

OnSdl::OnSdl() : window(openTestWindow()) {
    ShowWindow(window, SW_SHOW);
    messagesNow();
    heard.clear();
    answers = {{WM_CLOSE, 0}};
}

OnSdl::~OnSdl() {
    stoppedClock.reset();
    desktopRoom.reset();
    closeTestWindow();
}
