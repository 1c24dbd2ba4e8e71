# Makes the pictures with MAKER into the folder MADE and fails unless every bitmap and the font's
# metrics are equal, byte for byte, to the file of that name in COMMITTED, and there are no others.
# The icons are made but not compared: their bytes depend on the system's compression library.
file(REMOVE_RECURSE ${MADE})
execute_process(COMMAND ${MAKER} ${MADE}/graphics ${MADE}/icons RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${MAKER} failed: ${result}")
endif()

file(GLOB_RECURSE made RELATIVE ${MADE}/graphics ${MADE}/graphics/*)
file(GLOB_RECURSE committed RELATIVE ${COMMITTED} ${COMMITTED}/*)
if(NOT made STREQUAL committed)
  message(FATAL_ERROR "made: ${made}\ncommitted: ${committed}")
endif()
foreach(name IN LISTS made)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E compare_files ${MADE}/graphics/${name} ${COMMITTED}/${name}
    RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${name} differs from the committed one; build the target `pictures`")
  endif()
endforeach()
