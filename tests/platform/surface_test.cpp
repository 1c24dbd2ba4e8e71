// The surface that the game draws on, how it comes into the window, and how often.
#define GL_GLEXT_PROTOTYPES
#include <array>
#include <chrono>
#include <cstddef>

#include <GL/gl.h>
#include <GL/glext.h>

#include "platform/sdl_machine.h"

namespace {

using Colour = std::array<int, 3>;
using Four = std::array<int, 4>;

constexpr Colour black = {0, 0, 0};
constexpr Colour red = {255, 0, 0};
constexpr Colour green = {0, 255, 0};

Colour colourAt(int x, int y) {
    std::array<std::uint8_t, 4> bytes = {};
    glReadPixels(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, bytes.data());
    return {bytes[0], bytes[1], bytes[2]};
}

Four numbersOf(GLenum name) {
    Four numbers = {};
    glGetIntegerv(name, numbers.data());
    return numbers;
}

void fill(const Four& place, const Colour& colour) {
    glEnable(GL_SCISSOR_TEST);
    glScissor(place[0], place[1], place[2], place[3]);
    glClearColor(colour[0] > 0 ? 1.0f : 0.0f, colour[1] > 0 ? 1.0f : 0.0f, 0.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT);
    glDisable(GL_SCISSOR_TEST);
}

struct Surface : OnSdl {
    Surface() : dc(GetDC(window)) {
        EXPECT_FALSE(SetPixelFormat(dc, 1, &format)) << "none is chosen yet";
        EXPECT_EQ(lastErrorWords(), "The window has no such pixel format.");
        EXPECT_EQ(ChoosePixelFormat(dc, &format), 1) << lastErrorWords();
        EXPECT_TRUE(SetPixelFormat(dc, 1, &format) && !SetPixelFormat(dc, 2, &format));
        EXPECT_EQ(SDL_GL_GetCurrentContext(), nullptr) << "the game binds it";
        context = wglCreateContext(dc);
        EXPECT_TRUE(wglMakeCurrent(dc, context));
    }

    // A pixel of the window itself.
    Colour shownAt(int x, int y) const {
        glBindFramebuffer(GL_READ_FRAMEBUFFER, 0);
        const Colour colour = colourAt(x, y);
        wglMakeCurrent(dc, context);
        return colour;
    }

    // Draws pictures of one colour, or of two in turns.
    double secondsFor(int frames, const Colour& one = red, const Colour& other = green) const {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < frames; ++i) {
            if (takesMessages) { messagesNow(); }
            fill({0, 0, 640, 480}, i % 2 == 0 ? one : other);
            EXPECT_TRUE(SwapBuffers(dc));
        }
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    // On a busy machine most frames come late. Two in time come soon.
    bool hasFramesWithin(double seconds, const Colour& other = green) const {
        double passed = 0.0;
        for (double last = 99.0; passed < 20.0 && last >= 2 * seconds; passed += last) {
            last = secondsFor(2, red, other);
        }
        return passed < 20.0;
    }

    bool takesMessages = true;
    PIXELFORMATDESCRIPTOR format = {};
    HDC dc;
    HGLRC context = nullptr;
};

TEST_F(Surface, Is640By480In16BitsWith16BitsOfDepth) {
    EXPECT_EQ(DescribePixelFormat(dc, 1, sizeof format, &format), 1);
    EXPECT_EQ(format.dwFlags, 4 | PFD_DOUBLEBUFFER | PFD_SUPPORT_OPENGL) << "no palette";
    EXPECT_EQ((Four{format.cColorBits, format.cRedShift, format.cGreenBits, format.cDepthBits}),
              (Four{16, 11, 6, 16}));
    EXPECT_EQ(numbersOf(GL_VIEWPORT), (Four{0, 0, 640, 480}));
    EXPECT_EQ(numbersOf(GL_SCISSOR_BOX), (Four{0, 0, 640, 480}));
    const auto bits = [](GLenum name) { return numbersOf(name)[0]; };
    EXPECT_EQ(
        (Four{bits(GL_RED_BITS), bits(GL_GREEN_BITS), bits(GL_BLUE_BITS), bits(GL_DEPTH_BITS)}),
        (Four{5, 6, 5, 16}));
    EXPECT_EQ(SDL_GL_GetSwapInterval(), 1) << "frames wait for the display";
    PIXELFORMATDESCRIPTOR part = {};
    EXPECT_EQ(DescribePixelFormat(dc, 1, offsetof(PIXELFORMATDESCRIPTOR, cColorBits), &part), 1);
    EXPECT_EQ(part.cColorBits, 0) << "beyond the caller's memory";
    EXPECT_EQ(ChoosePixelFormat(dc, nullptr), 0);
    EXPECT_TRUE(ReleaseDC(window, dc) && !ReleaseDC(nullptr, dc) && !ReleaseDC(window, nullptr));
    EXPECT_EQ(wglCreateContext(dc), nullptr) << "the game has it";
    EXPECT_FALSE(wglMakeCurrent(dc, reinterpret_cast<HGLRC>(&part)));
    EXPECT_TRUE(wglMakeCurrent(dc, nullptr));
    EXPECT_FALSE(SwapBuffers(dc)) << "nothing is bound";
    EXPECT_TRUE(wglMakeCurrent(dc, context) && wglDeleteContext(context));
    EXPECT_EQ(SDL_GL_GetCurrentContext(), nullptr);
    EXPECT_FALSE(wglMakeCurrent(dc, context) || wglDeleteContext(context)) << "it is gone";
}

TEST_F(Surface, IsShownBetweenBlackBars) {
    const Four windows[] = {{640, 480, 0, 0}, {640, 360, 80, 0}, {400, 480, 0, 90}};
    for (const auto& [width, height, left, bottom] : windows) {
        SDL_SetWindowSize(sdlWindow(), width, height);
        fill({0, 0, 640, 480}, green);
        fill({0, 0, 320, 240}, red);
        EXPECT_TRUE(SwapBuffers(dc));
        EXPECT_EQ(shownAt(left + 1, bottom + 1), red) << width;
        EXPECT_EQ(shownAt(width - left - 2, bottom + 1), green) << width;
        EXPECT_EQ(shownAt(left + 1, height - bottom - 2), green) << width;
        EXPECT_EQ(shownAt(1, 1), left + bottom > 0 ? black : red);
        EXPECT_EQ(shownAt(width - 2, height - 2), left + bottom > 0 ? black : green);
    }
}

// Columns that are red and green by turns: a colour of the window between the two is a blur.
TEST_F(Surface, StaysSharpAtAnySize) {
    for (const auto& [width, most] :
         {std::pair(1280, 0), {1440, 22}, {1600, 22}, {960, 32}, {320, 60}}) {
        SDL_SetWindowSize(sdlWindow(), width, width * 3 / 4);
        fill({0, 0, 640, 480}, red);
        for (int x = 0; x < 640; x += 2) {
            fill({x, 0, 1, 480}, green);
        }
        EXPECT_TRUE(SwapBuffers(dc));
        int blurred = 0;
        for (int x = 0; x < 60; ++x) {
            const Colour colour = shownAt(x, 50);
            blurred += colour != red && colour != green ? 1 : 0;
        }
        EXPECT_LE(blurred, most) << width;
        EXPECT_EQ(blurred > 0, most > 0) << "all columns are equally wide";
    }
    int buffers = 0;
    for (GLuint name = 1; name < 100; ++name) {
        buffers += glIsRenderbuffer(name) + glIsFramebuffer(name);
    }
    EXPECT_LE(buffers, 5) << "those of other sizes are gone";
}

TEST_F(Surface, KeepsTheStatesOfTheGameWhenItIsShown) {
    const auto statesNow = [] {
        return std::array{numbersOf(GL_COLOR_WRITEMASK), numbersOf(GL_COLOR_CLEAR_VALUE),
                          numbersOf(GL_SCISSOR_TEST),    numbersOf(GL_DRAW_FRAMEBUFFER_BINDING),
                          numbersOf(GL_DRAW_BUFFER),     numbersOf(GL_READ_FRAMEBUFFER_BINDING)};
    };
    fill({0, 0, 640, 480}, red);
    SwapBuffers(dc);
    fill({0, 0, 640, 480}, green);
    glEnable(GL_SCISSOR_TEST);
    glScissor(10, 20, 30, 40);
    glColorMask(GL_FALSE, GL_TRUE, GL_FALSE, GL_TRUE);
    glClearColor(1, 0, 1, 0);
    SDL_SetWindowSize(sdlWindow(), 640, 360); // the bars stand where red was
    const auto before = statesNow();
    EXPECT_TRUE(SwapBuffers(dc));
    EXPECT_EQ(statesNow(), before);
    EXPECT_EQ(shownAt(300, 300), green) << "neither scissors nor masks cut the copy";
    EXPECT_EQ(shownAt(70, 300), black);
}

TEST_F(Surface, IsShownAsOftenAsTheDisplayCanAndNoOftener) {
    for (const int rate : {0, 50, 1000}) {
        refreshRate = rate;
        const int before = framesShown;
        EXPECT_GE(secondsFor(51), 50 * (rate == 50 ? 0.018 : 0.004)) << rate;
        EXPECT_EQ(framesShown, before + 51);
        EXPECT_TRUE(hasFramesWithin(rate == 50 ? 0.02 : 0.006)) << rate;
    }
    refreshRate = 1; // as some drivers report
    clockJump += 20 * SDL_GetPerformanceFrequency();
    EXPECT_LT(secondsFor(2), 1.0);
}

TEST_F(Surface, RestsUnseenUntilAnEventComes) {
    for (const Uint32 unseen : {SDL_WINDOW_HIDDEN, SDL_WINDOW_MINIMIZED}) {
        moreFlags = unseen;
        const int before = framesShown;
        EXPECT_GE(secondsFor(4), 0.35);
        EXPECT_TRUE(hasFramesWithin(0.15));
        takesMessages = false;
        pushEvent(SDL_POLLSENTINEL); // SDL's own
        EXPECT_GE(secondsFor(3), 0.25);
        pushKey(SDL_SCANCODE_J);
        EXPECT_TRUE(hasFramesWithin(0.05));
        EXPECT_EQ(framesShown, before);
        takesMessages = true;
    }
    moreFlags = 0;
    EXPECT_TRUE(hasFramesWithin(0.02)) << "seen again";
}

TEST_F(Surface, RestsWhileThePictureStaysOnSoftwareOpenGL) {
    int before = framesShown;
    secondsFor(25, red, red);
    EXPECT_EQ(framesShown, before + 25) << "it may change at any moment";
    secondsFor(15, red, red);
    before = framesShown;
    EXPECT_GE(secondsFor(5, red, red), 5 * 0.035);
    EXPECT_TRUE(hasFramesWithin(0.06, red));
    takesMessages = false;
    pushKey(SDL_SCANCODE_J);
    EXPECT_TRUE(hasFramesWithin(0.03, red)) << "until a key is pressed";
    takesMessages = true;
    EXPECT_EQ(framesShown, before);
    pushEvent(SDL_WINDOWEVENT, SDL_WINDOWEVENT_EXPOSED);
    secondsFor(1, red, red);
    EXPECT_EQ(framesShown, before + 1) << "the window has lost it";
    secondsFor(40, red, red);
    before = framesShown;
    fill({639, 0, 1, 1}, green);
    EXPECT_TRUE(SwapBuffers(dc));
    EXPECT_EQ(framesShown, before + 1) << "a dot has changed";
}

} // namespace
