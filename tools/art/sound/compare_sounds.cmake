# Makes the sounds with MAKER into the folder MADE and fails unless every one of them is equal, byte
# for byte, to the file of that name in COMMITTED, and there are no others.
file(REMOVE_RECURSE ${MADE})
execute_process(COMMAND ${MAKER} ${MADE} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${MAKER} failed: ${result}")
endif()

file(GLOB made RELATIVE ${MADE} ${MADE}/*)
file(GLOB committed RELATIVE ${COMMITTED} ${COMMITTED}/*)
if(NOT made STREQUAL committed)
  message(FATAL_ERROR "made: ${made}\ncommitted: ${committed}")
endif()
foreach(name IN LISTS made)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${MADE}/${name} ${COMMITTED}/${name}
    RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${name} differs from the committed one; build the target `sounds`")
  endif()
endforeach()
