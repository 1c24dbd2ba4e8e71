// The message queue and the timers, on a clock that stands still until a test moves it.
#include "platform/sdl_machine.h"

namespace {

constexpr UINT never = 0xFFFF'FFFF; // milliseconds, 49 days

struct Messages : OnSdl {
    ~Messages() override {
        for (const UINT_PTR timer : {1, 2}) {
            SetTimer(window, timer, never, nullptr);
        }
    }
};

// A clock that starts where SDL's stands.
struct Timers : Messages {
    Timers() { stoppedClock = SDL_GetTicks(); }

    static Numbers after(Uint64 milliseconds) {
        *stoppedClock += milliseconds;
        Numbers timers;
        for (const MSG& message : messagesNow()) {
            EXPECT_EQ(message.message, WM_TIMER);
            timers.push_back(static_cast<UINT>(message.wParam));
        }
        return timers;
    }
};

TEST_F(Timers, ComeAfterAllOtherMessages) {
    SetTimer(window, 1, 10, nullptr);
    *stoppedClock += 35; // due three times, told once
    pushWindowEvent(SDL_WINDOWEVENT_EXPOSED);
    pushKey(SDL_SCANCODE_J);
    PostQuitMessage(7);
    PostMessageA(window, WM_USER, 3, 4);
    PostMessageA(window, WM_USER + 1, 0, 0);
    const std::vector<MSG> messages = messagesNow();
    Numbers order;
    for (const MSG& message : messages) {
        order.push_back(message.message);
        EXPECT_EQ(message.time, *stoppedClock);
        EXPECT_EQ(message.hwnd, message.message == WM_QUIT ? nullptr : window);
    }
    ASSERT_EQ(order, (Numbers{WM_USER, WM_USER + 1, WM_QUIT, WM_KEYDOWN, WM_PAINT, WM_TIMER}));
    EXPECT_EQ(messages[0].wParam, 3U);
    EXPECT_EQ(messages[0].lParam, 4);
    EXPECT_EQ(messages[2].wParam, 7U);
    EXPECT_EQ(messages[5].wParam, 1U);
    EXPECT_EQ(heard, (Numbers{WM_USER, WM_USER + 1, WM_KEYDOWN, WM_PAINT, WM_TIMER}));
}

TEST_F(Timers, KeepTheirBeatAndTheOrderOfTheirDueTimes) {
    SetTimer(window, 2, 30, nullptr);
    SetTimer(window, 1, 20, nullptr);
    EXPECT_EQ(after(19), Numbers{});
    EXPECT_EQ(after(1), Numbers{1});
    EXPECT_EQ(after(0), Numbers{});
    EXPECT_EQ(after(45), (Numbers{2, 1})); // at 65: due since 30 and 40
    EXPECT_EQ(after(14), Numbers{});
    EXPECT_EQ(after(1), Numbers{1});
    EXPECT_EQ(after(9), Numbers{});
    EXPECT_EQ(after(1), Numbers{2});
    SetTimer(window, 2, 0, nullptr); // at 90; no timer is faster than every 10 milliseconds
    SetTimer(window, 1, 95, nullptr);
    EXPECT_EQ(after(9), Numbers{});
    EXPECT_EQ(after(1), Numbers{2});
    EXPECT_EQ(after(10), Numbers{2});
    EXPECT_EQ(after(74), Numbers{2});
    EXPECT_EQ(after(1), Numbers{1}) << "the new period only";
}

TEST_F(Timers, HaveTheNumberThatTheyAreGiven) {
    EXPECT_EQ(SetTimer(window, 2, never, nullptr), 2U);
    const UINT_PTR first = SetTimer(nullptr, 0, never, nullptr);
    EXPECT_GT(first, 2U);
    EXPECT_GT(SetTimer(nullptr, 0, never, nullptr), first) << "without a window: a new one";
}

UINT_PTR timerOfCallback = 0;

TEST_F(Timers, CallTheirOwnProcedure) {
    SetTimer(window, 1, 10, [](HWND, UINT message, UINT_PTR timer, DWORD) {
        timerOfCallback = message == WM_TIMER ? timer : 0;
    });
    EXPECT_EQ(after(10), Numbers{1});
    EXPECT_EQ(timerOfCallback, 1U);
    EXPECT_EQ(heard, Numbers{});
}

TEST_F(Timers, WaitForACallerWhoWantsThem) {
    MSG message = {};
    SetTimer(window, 1, 10, nullptr);
    *stoppedClock += 10;
    EXPECT_FALSE(PeekMessageA(&message, window, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
    EXPECT_TRUE(PeekMessageA(&message, window, 0, 0, 0));
    EXPECT_EQ(after(0), Numbers{1});
}

TEST_F(Messages, AreFilteredByWindowAndRange) {
    const auto peek = [](HWND wanted, UINT first, UINT last) {
        MSG message = {};
        return PeekMessageA(&message, wanted, first, last, 0) ? message.message : 0;
    };
    PostMessageA(nullptr, WM_USER + 1, 0, 0);
    PostMessageA(window, WM_USER + 3, 0, 0);
    EXPECT_EQ(peek(nullptr, 0, 0), WM_USER + 1);
    EXPECT_EQ(peek(window, 0, 0), WM_USER + 3);
    EXPECT_EQ(peek(nullptr, WM_USER + 2, WM_USER + 4), WM_USER + 3);
    EXPECT_EQ(peek(nullptr, WM_USER + 1, WM_USER + 1), WM_USER + 1);
    EXPECT_EQ(peek(nullptr, 0, WM_USER), 0U);
    EXPECT_EQ(peek(nullptr, WM_USER + 4, WM_USER + 9), 0U);
    pushWindowEvent(SDL_WINDOWEVENT_EXPOSED);
    EXPECT_EQ(peek(window, WM_KEYDOWN, WM_KEYDOWN), 0U);
    EXPECT_EQ(peek(window, WM_PAINT, WM_PAINT), WM_PAINT);
    PostQuitMessage(1);
    PostQuitMessage(2);
    EXPECT_EQ(peek(window, WM_KEYDOWN, WM_KEYDOWN), WM_QUIT);
    EXPECT_EQ(numbersNow(), (Numbers{WM_USER + 1, WM_USER + 3, WM_QUIT, WM_PAINT}));
    EXPECT_EQ(heard, (Numbers{WM_USER + 3, WM_PAINT}));
    EXPECT_FALSE(PeekMessageA(nullptr, window, 0, 0, PM_REMOVE));
}

TEST_F(Messages, HaveRoomForTenThousand) {
    constexpr std::size_t room = 10'000;
    for (std::size_t i = 0; i < room; ++i) {
        ASSERT_TRUE(PostMessageA(window, WM_USER, 0, 0));
        pushKey(SDL_SCANCODE_J);
    }
    EXPECT_FALSE(PostMessageA(window, WM_USER, 0, 0));
    pushKey(SDL_SCANCODE_J);
    MSG message = {};
    ASSERT_TRUE(PeekMessageA(&message, window, 0, 0, PM_REMOVE));
    EXPECT_TRUE(PostMessageA(window, WM_USER, 0, 0)) << "one was taken";
    const Numbers numbers = numbersNow();
    EXPECT_EQ(std::count(numbers.begin(), numbers.end(), WM_USER), room);
    EXPECT_EQ(std::count(numbers.begin(), numbers.end(), WM_KEYDOWN), room);
}

TEST_F(Messages, AreDispatchedToTheirWindowOnly) {
    MSG message = {};
    message.message = WM_USER;
    EXPECT_EQ(DispatchMessageA(&message), 0);
    EXPECT_EQ(DispatchMessageA(nullptr), 0);
    EXPECT_EQ(heard, Numbers{});
    answers[WM_USER] = 5;
    message.hwnd = window;
    EXPECT_EQ(DispatchMessageA(&message), 5);
}

} // namespace
