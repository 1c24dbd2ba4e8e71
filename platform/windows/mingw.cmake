# Toolchain: GCC for 64-bit Windows, as Debian packages it (scripts/setup windows).
#
# GLORBIX_MINGW chooses its threads: "win32" are the system's own and enough for the game;
# "posix" have what GoogleTest needs.
set(GLORBIX_MINGW win32 CACHE STRING "Threads of the compiler: win32 or posix")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES GLORBIX_MINGW)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-${GLORBIX_MINGW})
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-${GLORBIX_MINGW})
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
find_program(GLORBIX_MINGW_FOUND ${CMAKE_CXX_COMPILER})
if(NOT GLORBIX_MINGW_FOUND)
  message(FATAL_ERROR "${CMAKE_CXX_COMPILER} was not found. Debian's package: "
    "g++-mingw-w64-x86-64-${GLORBIX_MINGW}")
endif()

# Programs need no libraries of the compiler beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# Libraries and headers of this machine are of no use there.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# CTest runs the tests in Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../scripts/wine)
