# Builds with Emscripten: programs that run in Node.js, and tools that the compiler's packages need.

# Emscripten's linker runs Node.js with packages of Debian, which only Debian's own Node.js finds by
# itself.
set_property(GLOBAL PROPERTY RULE_LAUNCH_LINK "env NODE_PATH=/usr/share/nodejs")

# With its own fetch, Node.js would take the WebAssembly file for an address.
set(CMAKE_CROSSCOMPILING_EMULATOR node --no-experimental-fetch)

# A program with this library runs in Node.js on the files of this machine.
add_library(glorbix_node INTERFACE)
target_link_options(glorbix_node INTERFACE
  -sENVIRONMENT=node -sNODERAWFS=1 -sALLOW_MEMORY_GROWTH=1 -sEXIT_RUNTIME=1)

if(GLORBIX_TESTS)
  include(cmake/googletest.cmake)
  target_link_libraries(gtest INTERFACE glorbix_node)
endif()
