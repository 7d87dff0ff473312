# What the distribution's own helper takes out of a package's programs and modules, beside the debugging symbols that the
# installation leaves out.
file(GLOB_RECURSE files ${CPACK_TEMPORARY_DIRECTORY}/*/usr/bin/* ${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib/*.so)
foreach(file ${files})
  execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
