# Removes the same sections from programs and modules as Debian's dh_strip. CPACK_STRIP_FILES removes debugging symbols.
file(GLOB_RECURSE files ${CPACK_TEMPORARY_DIRECTORY}/*/usr/bin/* ${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib/*.so)
foreach(file ${files})
  execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
