# Lays under ROOT what a Debian package needs beside the files that are installed as they are: the programs' names where
# a shell finds them, and the compressed documentation. SHARED is the folder of the programs under ROOT.

# compress(FROM TO): the same bytes whoever compresses it, and when.
function(compress from to)
  cmake_path(GET to PARENT_PATH folder)
  file(MAKE_DIRECTORY "${folder}")
  execute_process(COMMAND gzip -9nc "${from}" OUTPUT_FILE "${to}" COMMAND_ERROR_IS_FATAL ANY)
  file(CHMOD "${to}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

file(MAKE_DIRECTORY "${ROOT}/bin")
foreach(program IN ITEMS tarnwick tarnwickctl)
  # The programs look for their folder behind the link.
  file(CREATE_LINK "../${SHARED}/${program}" "${ROOT}/bin/${program}" SYMBOLIC)
  if(EXISTS "${SOURCE}/docs/man/${program}.1")
    compress("${SOURCE}/docs/man/${program}.1" "${ROOT}/share/man/man1/${program}.1.gz")
  endif()
endforeach()
compress("${SOURCE}/CHANGELOG.md" "${ROOT}/share/doc/tarnwick/changelog.gz")
compress("${CHANGELOG}" "${ROOT}/share/doc/tarnwick/changelog.Debian.gz")
