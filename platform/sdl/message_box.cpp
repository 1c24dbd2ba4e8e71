#include "platform/sdl/message_box.h"

#include <algorithm>
#include <cmath>

#include "platform/sdl/desktop.h"
#include "platform/sdl/event_wait.h"
#include "platform/sdl/gamepad.h"
#include "platform/sdl/input.h"
#include "platform/sdl/video.h"

namespace {

constexpr int pollInterval = 100;         // milliseconds; a signal does not end a wait for events
constexpr Uint64 firstRepeatWithin = 700; // milliseconds until a held key repeats
constexpr double heightPerScale = 360.0;  // points of the display for each step of the scale
constexpr int leastScale = 2;

bool closesBox(const SDL_Keysym& key) {
    switch (key.sym) {
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
    case SDLK_SPACE:
    case SDLK_ESCAPE: return true;
    case SDLK_F4: return (key.mod & KMOD_ALT) != 0;
    default: return false;
    }
}

std::bitset<SDL_NUM_SCANCODES> heldKeys() {
    std::bitset<SDL_NUM_SCANCODES> held;
    int count = 0;
    const Uint8* down = SDL_GetKeyboardState(&count);
    for (int i = 0; i < std::min<int>(count, SDL_NUM_SCANCODES); ++i) {
        held[static_cast<std::size_t>(i)] = down[i] != 0;
    }
    return held;
}

// For SDL_FilterEvents: drops keys, and events of the box, which is closed.
int keepForGame(void* boxWindow, SDL_Event* event) {
    const Uint32 box = *static_cast<const Uint32*>(boxWindow);
    switch (event->type) {
    case SDL_KEYDOWN:
    case SDL_KEYUP:
    case SDL_CONTROLLERBUTTONDOWN: return 0;
    case SDL_WINDOWEVENT: return event->window.windowID == box ? 0 : 1;
    default: return 1;
    }
}

bool isShown(SDL_Window* window) {
    return window != nullptr && (SDL_GetWindowFlags(window) & SDL_WINDOW_SHOWN) != 0;
}

void requestEnd() {
    SDL_Event quit = {};
    quit.type = SDL_QUIT;
    SDL_PushEvent(&quit);
}

// Drivers without a display may leave the keyboard with no window when the box closes.
void giveKeyboard(SDL_Window* window) {
    SDL_Event gained = {};
    gained.type = SDL_WINDOWEVENT;
    gained.window.event = SDL_WINDOWEVENT_FOCUS_GAINED;
    gained.window.windowID = SDL_GetWindowID(window);
    SDL_PushEvent(&gained);
}

} // namespace

bool MessageBox::open(const BoxContent& box, SDL_Window* over) {
    content = box;
    parent = isShown(over) ? over : nullptr;
    glWindow = SDL_GL_GetCurrentWindow();
    glContext = SDL_GL_GetCurrentContext();
    opened = SDL_GetTicks64();
    heldBefore = heldKeys();
    cursor = SDL_ShowCursor(SDL_QUERY);
    if (!createWindow(displayOf(over))) { return false; }
    show();
    if (!paint()) {
        close();
        return false;
    }
    return true;
}

bool MessageBox::createWindow(int display) {
    const SDL_Rect area = usableArea(display);
    scale = std::max(leastScale, static_cast<int>(std::lround(area.h / heightPerScale)));
    const BoxLayout layout =
        layOutBox(content, scale, area.w - frameAllowance, area.h - frameAllowance);
    const int centre = centreOf(display);
    sdl = SDL_CreateWindow(content.caption.c_str(), centre, centre, layout.width, layout.height,
                           SDL_WINDOW_HIDDEN | SDL_WINDOW_ALWAYS_ON_TOP | SDL_WINDOW_ALLOW_HIGHDPI);
    return sdl != nullptr;
}

// X11 needs to know the parent before the window is shown, Wayland afterwards.
void MessageBox::show() {
    const bool modal = parent == nullptr || SDL_SetWindowModalFor(sdl, parent) == 0;
    SDL_ShowWindow(sdl);
    if (!modal) { SDL_SetWindowModalFor(sdl, parent); }
    SDL_RaiseWindow(sdl);
    SDL_ShowCursor(SDL_ENABLE);
}

bool MessageBox::paint() {
    SDL_Surface* surface = SDL_GetWindowSurface(sdl);
    int width = 0; // points
    SDL_GetWindowSize(sdl, &width, nullptr);
    if (surface == nullptr || width <= 0) { return false; }
    const int pixelsInPoint = std::max(1, surface->w / width);
    const BoxLayout layout = layOutBox(content, scale * pixelsInPoint, surface->w, surface->h);
    button = paintBox(*surface, content, layout);
    return SDL_UpdateWindowSurface(sdl) == 0;
}

void MessageBox::wait() {
    const bool answerable = isDisplayVisible();
    for (;;) {
        SDL_Event event;
        const bool received =
            waitForEvent(answerable ? pollInterval : 1) && SDL_PollEvent(&event) != 0;
        if (received ? handle(event) : !answerable) { return; }
    }
}

bool MessageBox::handle(const SDL_Event& event) {
    switch (event.type) {
    case SDL_QUIT: requestEnd(); return true;
    case SDL_WINDOWEVENT: return handleWindowEvent(event.window);
    case SDL_KEYDOWN: handleKeyDown(event.key); return false;
    case SDL_KEYUP: return pressed != SDL_SCANCODE_UNKNOWN && event.key.keysym.scancode == pressed;
    case SDL_MOUSEBUTTONDOWN: clicking = isOnButton(event.button); return false;
    case SDL_MOUSEBUTTONUP: return clicking && isOnButton(event.button);
    case SDL_CONTROLLERBUTTONDOWN: pressing = answersBox(event.cbutton); return false;
    case SDL_CONTROLLERBUTTONUP: return pressing && answersBox(event.cbutton);
    default: followGamepads(event); return false;
    }
}

bool MessageBox::handleWindowEvent(const SDL_WindowEvent& event) {
    if (event.windowID != SDL_GetWindowID(sdl)) {
        if (event.event == SDL_WINDOWEVENT_CLOSE) {
            requestEnd();
            return true;
        }
        handleGameWindowEvent(event);
        return false;
    }
    switch (event.event) {
    case SDL_WINDOWEVENT_CLOSE: return true;
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SIZE_CHANGED: paint(); return false;
    default: return false;
    }
}

// SDL may report a key that was held before the box opened as pressed again when it repeats.
void MessageBox::handleKeyDown(const SDL_KeyboardEvent& event) {
    const SDL_Scancode key = event.keysym.scancode;
    const bool heldSince =
        heldBefore[static_cast<std::size_t>(key)] && SDL_GetTicks64() - opened < firstRepeatWithin;
    if (!event.repeat && !heldSince && closesBox(event.keysym)) { pressed = key; }
}

bool MessageBox::isOnButton(const SDL_MouseButtonEvent& event) const {
    const SDL_Surface* surface = SDL_GetWindowSurface(sdl);
    int width = 0; // points
    int height = 0;
    SDL_GetWindowSize(sdl, &width, &height);
    if (surface == nullptr || width <= 0 || height <= 0 || event.windowID != SDL_GetWindowID(sdl)) {
        return false;
    }
    const SDL_Point at = {event.x * surface->w / width, event.y * surface->h / height};
    return event.button == SDL_BUTTON_LEFT && SDL_PointInRect(&at, &button);
}

void MessageBox::close() {
    Uint32 id = SDL_GetWindowID(sdl);
    const bool hadKeyboard = SDL_GetKeyboardFocus() == sdl;
    SDL_DestroyWindow(sdl);
    sdl = nullptr;
    if (glContext != nullptr && SDL_GL_GetCurrentContext() != glContext) {
        SDL_GL_MakeCurrent(glWindow, glContext);
    }
    SDL_ShowCursor(cursor);
    if (parent != nullptr && hadKeyboard) {
        SDL_RaiseWindow(parent);
        SDL_SetWindowInputFocus(parent); // for desktops without a window manager
    }
    SDL_PumpEvents();
    SDL_ResetKeyboard();
    SDL_FilterEvents(keepForGame, &id);
    if (parent != nullptr && !isDisplayVisible()) { giveKeyboard(parent); }
}
