// A gamepad that SDL makes up: plugged in, played, pulled out.
#include <tuple>

#include "platform/sdl_machine.h"

namespace {

struct Gamepad : OnSdl {
    Gamepad() { plugIn(); }
    ~Gamepad() override { pullOut(); }

    void plugIn() {
        SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1"); // nobody has the keyboard here
        device = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER,
                                           SDL_CONTROLLER_AXIS_MAX, SDL_CONTROLLER_BUTTON_MAX, 0);
        stick = SDL_JoystickOpen(device);
        pressedNow();
    }
    void pullOut() {
        SDL_JoystickClose(stick);
        SDL_JoystickDetachVirtual(device);
        pressedNow();
    }
    Codes move(SDL_GameControllerAxis axis, double share) {
        SDL_JoystickSetVirtualAxis(stick, axis, static_cast<Sint16>(share * SDL_JOYSTICK_AXIS_MAX));
        return pressedNow();
    }
    Codes press(SDL_GameControllerButton button, bool down = true) {
        SDL_JoystickSetVirtualButton(stick, button, down ? 1 : 0);
        return pressedNow();
    }
    int device = -1;
    SDL_Joystick* stick = nullptr;
};

TEST_F(Gamepad, SteersWithStickAndCrossAndSpeedsUpWithTriggers) {
    const std::tuple<SDL_GameControllerAxis, double, SDL_GameControllerButton, int> ways[] = {
        {SDL_CONTROLLER_AXIS_LEFTX, -1.0, SDL_CONTROLLER_BUTTON_DPAD_LEFT, VK_LEFT},
        {SDL_CONTROLLER_AXIS_LEFTX, 1.0, SDL_CONTROLLER_BUTTON_DPAD_RIGHT, VK_RIGHT},
        {SDL_CONTROLLER_AXIS_LEFTY, -1.0, SDL_CONTROLLER_BUTTON_DPAD_UP, VK_UP},
        {SDL_CONTROLLER_AXIS_LEFTY, 1.0, SDL_CONTROLLER_BUTTON_DPAD_DOWN, VK_DOWN}};
    for (const auto& [axis, side, cross, key] : ways) {
        EXPECT_EQ(move(axis, side * 0.33), Codes{}) << "the dead zone";
        EXPECT_EQ(move(axis, side * 0.37), Codes{key});
        EXPECT_EQ(move(axis, side * 0.33), Codes{}) << "held, but not pressed again";
        EXPECT_EQ(heldCodes(), Codes{key});
        move(axis, side * 0.2);
        EXPECT_EQ(heldCodes(), Codes{});
        EXPECT_EQ(press(cross), Codes{key});
        EXPECT_EQ(heldCodes(), Codes{key});
        press(cross, false);
    }
    for (const auto trigger : {SDL_CONTROLLER_AXIS_TRIGGERLEFT, SDL_CONTROLLER_AXIS_TRIGGERRIGHT}) {
        move(trigger, 1.0);
        EXPECT_EQ(heldCodes(), Codes{VK_SHIFT});
        move(trigger, -1.0);
        EXPECT_EQ(heldCodes(), Codes{});
    }
}

TEST_F(Gamepad, AnswersMenusAndBoxesAndMayBePulledOut) {
    EXPECT_EQ(press(SDL_CONTROLLER_BUTTON_A), (Codes{VK_SHIFT, VK_RETURN}));
    EXPECT_EQ(heldCodes(), (Codes{VK_RETURN, VK_SHIFT}));
    press(SDL_CONTROLLER_BUTTON_A, false);
    EXPECT_EQ(press(SDL_CONTROLLER_BUTTON_START), Codes{VK_ESCAPE});
    EXPECT_EQ(press(SDL_CONTROLLER_BUTTON_B), Codes{VK_ESCAPE});
    move(SDL_CONTROLLER_AXIS_LEFTX, 1.0);
    pullOut();
    EXPECT_EQ(heldCodes(), Codes{}) << "nothing is stuck";
    plugIn();
    EXPECT_EQ(press(SDL_CONTROLLER_BUTTON_DPAD_UP), Codes{VK_UP});
}

TEST_F(Gamepad, IsLetGoWhileABoxIsOpen) {
    move(SDL_CONTROLLER_AXIS_LEFTX, 1.0);
    SDL_JoystickSetVirtualAxis(stick, SDL_CONTROLLER_AXIS_LEFTX, 0);
    SDL_JoystickSetVirtualAxis(stick, SDL_CONTROLLER_AXIS_LEFTY, SDL_JOYSTICK_AXIS_MAX);
    MessageBoxA(window, "", "Notice", MB_OK);
    EXPECT_EQ(heldCodes(), Codes{VK_DOWN});
    EXPECT_EQ(pressedNow(), Codes{}) << "the game was not played";
}

} // namespace
