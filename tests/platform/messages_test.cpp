// The message queue and the timers, on a clock that stands still until a test moves it.
#include <tuple>

#include "platform/sdl_machine.h"

namespace {

constexpr UINT never = 0xFFFF'FFFF; // milliseconds, 49 days

struct Messages : OnSdl {
    Messages() { stoppedClock = SDL_GetTicks(); }
    ~Messages() override {
        SetTimer(window, 1, never, nullptr);
        SetTimer(window, 2, never, nullptr);
    }

    // Returns the time afterwards.
    static DWORD passTime(Uint64 milliseconds) {
        return static_cast<DWORD>(stoppedClock.emplace(stoppedClock.value_or(0) + milliseconds));
    }

    // The timers whose messages come after each of these times.
    static void expectTimers(const std::vector<std::pair<Uint64, Numbers>>& expected) {
        for (const auto& [milliseconds, numbers] : expected) {
            passTime(milliseconds);
            Numbers timers;
            for (const MSG& message : messagesNow()) {
                timers.push_back(static_cast<UINT>(message.wParam));
            }
            EXPECT_EQ(timers, numbers);
        }
    }
};

TEST_F(Messages, ComeOutPostedFirstThenQuitInputPaintAndTimers) {
    using Told = std::tuple<UINT, HWND, WPARAM, LPARAM, DWORD>;
    SetTimer(window, 1, 10, nullptr);
    const auto later = passTime(35); // due three times, sent once
    pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_EXPOSED);
    pushKey(SDL_SCANCODE_J);
    PostQuitMessage(7);
    PostMessageA(window, WM_USER, 3, 4);
    PostMessageA(nullptr, WM_USER + 1, 0, 0);
    std::vector<Told> told;
    for (const MSG& m : messagesNow()) {
        told.emplace_back(m.message, m.hwnd, m.wParam, m.lParam, m.time);
    }
    EXPECT_EQ(told, (std::vector<Told>{{WM_USER, window, 3, 4, later},
                                       {WM_USER + 1, nullptr, 0, 0, later},
                                       {WM_QUIT, nullptr, 7, 0, later},
                                       {WM_KEYDOWN, window, 'J', 1, later},
                                       {WM_PAINT, window, 0, 0, later},
                                       {WM_TIMER, window, 1, 0, later}}));
    EXPECT_EQ(heardNow(), (Numbers{WM_USER, WM_KEYDOWN, WM_PAINT, WM_TIMER})) << "its own";
}

TEST_F(Messages, OfTimersComeAtTheirPeriodInTheOrderOfTheirDueTimes) {
    SetTimer(window, 2, 30, nullptr);
    SetTimer(window, 1, 20, nullptr);
    expectTimers(
        {{19, {}}, {1, {1}}, {0, {}}, {45, {2, 1}}, {14, {}}, {1, {1}}, {9, {}}, {1, {2}}});
    SetTimer(window, 2, 0, nullptr); // no timer is faster than every 10 milliseconds
    SetTimer(window, 1, 95, nullptr);
    expectTimers({{9, {}}, {1, {2}}, {10, {2}}, {74, {2}}, {1, {1}}});
    static UINT_PTR calledFor = 0;
    SetTimer(window, 1, 10, [](HWND, UINT, UINT_PTR timer, DWORD) { calledFor = timer; });
    expectTimers({{10, {2, 1}}});
    EXPECT_EQ(calledFor, 1U) << "with a procedure of its own";
    EXPECT_EQ(SetTimer(window, 900, never, nullptr), 900U);
    EXPECT_GT(SetTimer(nullptr, 2, never, nullptr), 900U) << "without a window: a new number";
}

TEST_F(Messages, AreFilteredByWindowAndRange) {
    const auto peek = [](HWND wanted, UINT first, UINT last) {
        MSG message = {};
        return PeekMessageA(&message, wanted, first, last, 0) ? message.message : 0;
    };
    PostMessageA(nullptr, WM_USER + 1, 0, 0);
    PostMessageA(window, WM_USER + 3, 0, 0);
    EXPECT_EQ(peek(window, 0, 0), WM_USER + 3);
    EXPECT_EQ(peek(nullptr, WM_USER + 2, WM_USER + 3), WM_USER + 3);
    EXPECT_EQ(peek(nullptr, WM_USER + 1, WM_USER + 1), WM_USER + 1);
    EXPECT_EQ(peek(nullptr, WM_USER + 4, WM_USER + 9), 0U);
    SetTimer(window, 1, 10, nullptr);
    passTime(10);
    EXPECT_EQ(peek(window, WM_KEYDOWN, WM_KEYDOWN), 0U);
    EXPECT_EQ(peek(window, WM_TIMER, WM_TIMER), WM_TIMER);
    EXPECT_FALSE(PeekMessageA(nullptr, nullptr, 0, 0, PM_REMOVE));
    PostQuitMessage(1);
    EXPECT_EQ(peek(window, WM_KEYDOWN, WM_KEYDOWN), WM_QUIT) << "it passes every filter";
    EXPECT_EQ(messagesNow().size(), 4U);
}

TEST_F(Messages, HaveRoomForTenThousand) {
    for (int i = 0; i < 10'001; ++i) {
        EXPECT_EQ(PostMessageA(window, WM_USER, 0, 0), i < 10'000 ? TRUE : FALSE);
        pushKey(SDL_SCANCODE_J);
    }
    EXPECT_EQ(heardNow().size(), 20'000U);
}

} // namespace
