// Opens the window and the context that the game opens, shows one frame, and does nothing else.
#include <cstdio>
#include <cstdlib>

#include <GL/gl.h>
#include <SDL.h>

namespace {

[[noreturn]] void fail() {
    std::fprintf(stderr, "bare_window: %s\n", SDL_GetError());
    std::exit(EXIT_FAILURE);
}

} // namespace

int main(int, char*[]) {
    if (SDL_Init(SDL_INIT_VIDEO) != 0) { fail(); }
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MAJOR_VERSION, 2);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MINOR_VERSION, 1);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_PROFILE_MASK, SDL_GL_CONTEXT_PROFILE_COMPATIBILITY);
    SDL_Window* window = SDL_CreateWindow("Glorbix", 0, 0, 640, 480,
                                          SDL_WINDOW_OPENGL | SDL_WINDOW_FULLSCREEN_DESKTOP);
    if (window == nullptr || SDL_GL_CreateContext(window) == nullptr) { fail(); }
    glClear(GL_COLOR_BUFFER_BIT);
    SDL_GL_SwapWindow(window);
    SDL_Quit();
    return EXIT_SUCCESS;
}
