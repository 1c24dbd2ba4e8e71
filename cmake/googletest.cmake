# GTest::gtest_main: the library for the machine that the tests run on, or else its sources, as
# Debian has them for every other machine.
find_package(GTest QUIET)
if(TARGET GTest::gtest_main)
  return()
endif()
set(googletest_sources /usr/src/googletest)
if(NOT EXISTS ${googletest_sources}/CMakeLists.txt)
  set(googletest_sources)
endif()
need(googletest_sources GoogleTest "libgtest-dev, or googletest when cross-compiling" GLORBIX_TESTS)
set(INSTALL_GTEST OFF)
add_subdirectory(${googletest_sources} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
