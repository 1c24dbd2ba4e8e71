# Makes files with MAKER into the folder MADE, and others that are not compared into ALSO where it is
# given, and fails unless all in MADE are equal, byte for byte, to the files of the same names in
# COMMITTED, and there are no others.
file(REMOVE_RECURSE ${MADE})
execute_process(COMMAND ${MAKER} ${MADE} ${ALSO} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${MAKER} failed: ${result}")
endif()

file(GLOB_RECURSE made RELATIVE ${MADE} ${MADE}/*)
file(GLOB_RECURSE committed RELATIVE ${COMMITTED} ${COMMITTED}/*)
if(NOT made STREQUAL committed)
  message(FATAL_ERROR "made: ${made}\ncommitted: ${committed}")
endif()
foreach(name IN LISTS made)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${MADE}/${name} ${COMMITTED}/${name}
    RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${name} differs from the committed one; build the target art")
  endif()
endforeach()
