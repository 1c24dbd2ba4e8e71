# Toolchain: Emscripten, as Debian packages it (scripts/setup web).
set(toolchain /usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
if(NOT EXISTS ${toolchain})
  message(FATAL_ERROR "Emscripten was not found. Debian's package: emscripten")
endif()
include(${toolchain})
