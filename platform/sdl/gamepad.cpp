#include "platform/sdl/gamepad.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <memory>

#include "platform/common/message_queue.h"
#include "platform/sdl/window_handle.h"
#include "platform/windows_api.h"

namespace {

// A stick or a trigger presses its key beyond `pressAt`, and releases it nearer than `releaseAt`,
// so that a stick that trembles does not press again and again.
constexpr int pressAt = SDL_JOYSTICK_AXIS_MAX * 35 / 100;
constexpr int releaseAt = SDL_JOYSTICK_AXIS_MAX * 25 / 100;

struct AxisKey {
    SDL_GameControllerAxis axis;
    int direction; // 1 or -1
    int key;
};

constexpr AxisKey axisKeys[] = {
    {SDL_CONTROLLER_AXIS_LEFTX, -1, VK_LEFT},       {SDL_CONTROLLER_AXIS_LEFTX, 1, VK_RIGHT},
    {SDL_CONTROLLER_AXIS_LEFTY, -1, VK_UP},         {SDL_CONTROLLER_AXIS_LEFTY, 1, VK_DOWN},
    {SDL_CONTROLLER_AXIS_TRIGGERLEFT, 1, VK_SHIFT}, {SDL_CONTROLLER_AXIS_TRIGGERRIGHT, 1, VK_SHIFT},
};

struct ButtonKey {
    SDL_GameControllerButton button;
    int key;
};

constexpr ButtonKey buttonKeys[] = {
    {SDL_CONTROLLER_BUTTON_DPAD_LEFT, VK_LEFT}, {SDL_CONTROLLER_BUTTON_DPAD_RIGHT, VK_RIGHT},
    {SDL_CONTROLLER_BUTTON_DPAD_UP, VK_UP},     {SDL_CONTROLLER_BUTTON_DPAD_DOWN, VK_DOWN},
    {SDL_CONTROLLER_BUTTON_A, VK_SHIFT},        {SDL_CONTROLLER_BUTTON_A, VK_RETURN},
    {SDL_CONTROLLER_BUTTON_START, VK_ESCAPE},   {SDL_CONTROLLER_BUTTON_B, VK_ESCAPE},
};

struct ControllerCloser {
    void operator()(SDL_GameController* controller) const { SDL_GameControllerClose(controller); }
};

struct Gamepad {
    std::unique_ptr<SDL_GameController, ControllerCloser> controller;
    std::array<bool, std::size(axisKeys)> pressed = {}; // by axes, in their order
};

std::map<SDL_JoystickID, Gamepad> gamepads;

void open(int device) {
    SDL_GameController* controller = SDL_GameControllerOpen(device);
    if (controller == nullptr) { return; }
    const SDL_JoystickID id = SDL_JoystickInstanceID(SDL_GameControllerGetJoystick(controller));
    gamepads[id].controller.reset(controller);
}

using PressKey = void (*)(int key);

void moveAxis(const SDL_ControllerAxisEvent& event, PressKey press) {
    const auto found = gamepads.find(event.which);
    if (found == gamepads.end()) { return; }
    for (std::size_t i = 0; i < std::size(axisKeys); ++i) {
        const AxisKey& own = axisKeys[i];
        if (own.axis != event.axis) { continue; }
        bool& pressed = found->second.pressed[i];
        const bool before = pressed;
        pressed = own.direction * event.value > (before ? releaseAt : pressAt);
        if (pressed && !before) { press(own.key); }
    }
}

void pressButton(const SDL_ControllerButtonEvent& event, PressKey press) {
    for (const ButtonKey& own : buttonKeys) {
        if (own.button == event.button) { press(own.key); }
    }
}

void handle(const SDL_Event& event, PressKey press) {
    switch (event.type) {
    case SDL_CONTROLLERDEVICEADDED: open(event.cdevice.which); break;
    case SDL_CONTROLLERDEVICEREMOVED: gamepads.erase(event.cdevice.which); break;
    case SDL_CONTROLLERAXISMOTION: moveAxis(event.caxis, press); break;
    case SDL_CONTROLLERBUTTONDOWN: pressButton(event.cbutton, press); break;
    default: break;
    }
}

bool holds(const Gamepad& gamepad, int key) {
    for (std::size_t i = 0; i < std::size(axisKeys); ++i) {
        if (axisKeys[i].key == key && gamepad.pressed[i]) { return true; }
    }
    return std::any_of(std::begin(buttonKeys), std::end(buttonKeys), [&](const ButtonKey& own) {
        return own.key == key &&
               SDL_GameControllerGetButton(gamepad.controller.get(), own.button) != 0;
    });
}

} // namespace

void startGamepads() {
    SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER);
}

void handleGamepadEvent(const SDL_Event& event) {
    handle(event, [](int key) {
        constexpr LPARAM onePress = 1;
        postInput(currentWindow(), WM_KEYDOWN, static_cast<WPARAM>(key), onePress);
    });
}

void followGamepads(const SDL_Event& event) {
    handle(event, [](int) {});
}

bool isHeldOnGamepad(int key) {
    return std::any_of(gamepads.begin(), gamepads.end(),
                       [&](const auto& entry) { return holds(entry.second, key); });
}

bool answersBox(const SDL_ControllerButtonEvent& button) {
    return button.button == SDL_CONTROLLER_BUTTON_A || button.button == SDL_CONTROLLER_BUTTON_B ||
           button.button == SDL_CONTROLLER_BUTTON_START;
}
