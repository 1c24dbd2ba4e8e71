// The functions of Windows that the game calls, with their types and constants: the same names,
// signatures, record layouts and values as there, and what the game expects of each. The game draws
// with OpenGL (<GL/gl.h>) besides.
//
// The program for Windows defines GLORBIX_SYSTEM_WINDOWS and gets the system's own headers. All
// others, such as the tests on Windows too, get the declarations in platform/windows_api/: the
// system imports its functions from its libraries, and the linker cannot put fakes in their place.
// platform/windows_api_check.cpp compares both with the same list.
//
// The linker chooses the implementation: platform/sdl for play, tests/fakes for the tests. No
// function is thread-safe; the game calls them all from the thread that runs WinMain. Texts are
// bytes; platform/sdl takes them as UTF-8.
#pragma once

#ifdef GLORBIX_SYSTEM_WINDOWS

#ifndef NOMINMAX
#define NOMINMAX // windows.h would define min and max as macros
#endif

#include <windows.h>

#include <mmsystem.h>

#else

#include "platform/windows_api/display.h"
#include "platform/windows_api/sound.h"
#include "platform/windows_api/system.h"
#include "platform/windows_api/types.h"
#include "platform/windows_api/window.h"

#endif
