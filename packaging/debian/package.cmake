# The Debian package, made by cpack in the build folder of the preset "debian".
set(CPACK_PACKAGE_CONTACT "The developers of Glorbix <developers@glorbix.org>")

# A package of one release is the same whenever and wherever it is built.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  message(FATAL_ERROR "SOURCE_DATE_EPOCH is not set; use scripts/package")
endif()
string(TIMESTAMP RELEASE_DATE_RFC "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in changelog.Debian @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/glorbix)
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md RENAME changelog
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/glorbix)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/glorbix)

# Debian's form of the licence: a blank line is a single dot.
file(READ ${PROJECT_SOURCE_DIR}/LICENSE licence)
string(REGEX REPLACE "\n\n" "\n.\n" licence "${licence}")
string(REGEX REPLACE "\n$" "" licence "${licence}")
string(REGEX REPLACE "\n" "\n " LICENCE_TEXT "${licence}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/copyright.in copyright @ONLY)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME glorbix)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fluid-soundfont-gm | timgm6mb-soundfont")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "roll a marble down a course of soft wells")
set(CPACK_PACKAGE_DESCRIPTION
  "The arrow keys roll a marble down a long course, against the clock. Holes and
edges cost five seconds; each of the ten courses gives 45. A run over all
courses ends in a table of best times. A tool to check, draw, drive and create
courses is included.")
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/layout.cmake)
include(CPack)
