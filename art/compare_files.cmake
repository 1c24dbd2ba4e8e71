# Runs MAKER with the folder MADE and ARGUMENT, and fails unless MADE/FOLDER and COMMITTED/FOLDER
# hold the same files: the same names, the same bytes.
file(REMOVE_RECURSE ${MADE})
execute_process(COMMAND ${MAKER} ${MADE} ${ARGUMENT} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${MAKER} failed: ${result}")
endif()

file(GLOB_RECURSE made RELATIVE ${MADE} ${MADE}/${FOLDER}/*)
file(GLOB_RECURSE committed RELATIVE ${COMMITTED} ${COMMITTED}/${FOLDER}/*)
if(NOT made STREQUAL committed)
  message(FATAL_ERROR "made: ${made}\ncommitted: ${committed}")
endif()
foreach(name IN LISTS made)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${MADE}/${name} ${COMMITTED}/${name}
    RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${name} differs from the committed file; build the target art")
  endif()
endforeach()
