# Lays under ROOT what an installation needs of PROGRAM beside the files that are installed as they are: its name where a
# shell finds it, its unit, the compressed documentation, and the list of what it is made of. SHARED is the folder of the
# programs under ROOT.

# compress(FROM TO): the same bytes whoever compresses it, and when.
function(compress from to)
  cmake_path(GET to PARENT_PATH folder)
  file(MAKE_DIRECTORY "${folder}")
  execute_process(COMMAND gzip -9nc "${from}" OUTPUT_FILE "${to}" COMMAND_ERROR_IS_FATAL ANY)
  file(CHMOD "${to}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

file(MAKE_DIRECTORY "${ROOT}/${BIN}")
# The programs look for their folder behind the link.
cmake_path(RELATIVE_PATH SHARED BASE_DIRECTORY "${BIN}" OUTPUT_VARIABLE target)
file(CREATE_LINK "${target}/${PROGRAM}" "${ROOT}/${BIN}/${PROGRAM}" SYMBOLIC)
compress("${SOURCE}/docs/man/${PROGRAM}.1" "${ROOT}/${MAN}/man1/${PROGRAM}.1.gz")
compress("${SOURCE}/CHANGELOG.md" "${ROOT}/${DOC}/changelog.gz")
compress("${CHANGELOG}" "${ROOT}/${DOC}/changelog.Debian.gz")
if(PROGRAM STREQUAL "tarnwickctl")
  file(READ "${SOURCE}/docs/systemd/tarnwick.service" unit)
  string(REPLACE "/usr/bin/" "${CMAKE_INSTALL_PREFIX}/${BIN}/" unit "${unit}")
  file(WRITE "${ROOT}/${UNITS}/tarnwick.service" "${unit}")
  file(CHMOD "${ROOT}/${UNITS}/tarnwick.service" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endif()
execute_process(
  COMMAND "${PYTHON}" "${SOURCE}/packaging/made_of.py" sbom --version ${VERSION} --time ${TIME}
    --programs "${ROOT}/${SHARED}/${PROGRAM}" --to "${ROOT}/${DOC}/${PROGRAM}.spdx.json"
  COMMAND_ERROR_IS_FATAL ANY)
