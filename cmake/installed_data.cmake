# Where the installed game and the level tool find the data: from the folder of the program, so that
# both can be moved together or installed with another prefix, and otherwise in the configured folder.
set(GLORBIX_INSTALL_DATA_DIR "" CACHE PATH
  "Folder of the installed game data; <datadir>/glorbix when empty")
if(GLORBIX_INSTALL_DATA_DIR)
  set(glorbix_data_destination ${GLORBIX_INSTALL_DATA_DIR})
  set(glorbix_data_folder ${GLORBIX_INSTALL_DATA_DIR})
else()
  set(glorbix_data_destination ${CMAKE_INSTALL_DATADIR}/glorbix)
  set(glorbix_data_folder ${CMAKE_INSTALL_FULL_DATADIR}/glorbix)
endif()
file(RELATIVE_PATH glorbix_data_from_program ${CMAKE_INSTALL_FULL_BINDIR} ${glorbix_data_folder})

# On Windows they are in one folder.
if(WIN32)
  set(CMAKE_INSTALL_BINDIR .)
  set(glorbix_data_destination .)
  set(glorbix_data_folder .)
  set(glorbix_data_from_program .)
endif()

add_library(glorbix_installed_data INTERFACE)
target_compile_definitions(glorbix_installed_data INTERFACE
  GLORBIX_DATA_DIR="${glorbix_data_folder}"
  GLORBIX_DATA_FROM_PROGRAM="${glorbix_data_from_program}")
