# Brings the files of the package into the form that Debian wants: manual pages and changes
# compressed, no group may write, and all of them of the day of the release, so that two builds give
# the same package.
set(root ${CPACK_TEMPORARY_DIRECTORY})
file(GLOB_RECURSE compressed ${root}/usr/share/man/*.6 ${root}/usr/share/doc/glorbix/changelog*)
if(compressed)
  execute_process(COMMAND gzip -9n ${compressed} COMMAND_ERROR_IS_FATAL ANY)
endif()
execute_process(COMMAND chmod -R go-w ${root} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND find ${root} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +
  COMMAND_ERROR_IS_FATAL ANY)
