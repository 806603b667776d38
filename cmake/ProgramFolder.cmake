# The program folder: the executables and everything that must lie beside them, in one folder that can be moved anywhere.
# The build lays it out in ${CMAKE_BINARY_DIR}/tarnwick, `cmake --install --component portable` in <prefix>/tarnwick, CPack
# in an archive.
find_program(SQLITE3_PROGRAM sqlite3 REQUIRED)

set(TARNWICK_FOLDER ${CMAKE_BINARY_DIR}/tarnwick)
set_target_properties(tarnwick tarnwickctl PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${TARNWICK_FOLDER})

add_custom_target(program_folder ALL
  COMMAND ${CMAKE_COMMAND}
    -D FOLDER=${TARNWICK_FOLDER}
    -D ASSETS=${CMAKE_SOURCE_DIR}/assets
    -D HELP=${TARNWICK_HELP}
    -D TRANSLATIONS=${TARNWICK_TRANSLATIONS}
    -D SQLITE3=${SQLITE3_PROGRAM}
    -P ${CMAKE_SOURCE_DIR}/cmake/LayProgramFolder.cmake
  DEPENDS tarnwick tarnwickctl help_pages
  COMMENT "Laying out the program folder ${TARNWICK_FOLDER}"
  VERBATIM)
if(TARGET translations)
  add_dependencies(program_folder translations)
endif()

# Installing over an older version keeps the user's files as rebuilding does.
set(portable COMPONENT portable EXCLUDE_FROM_ALL)
install(TARGETS tarnwick tarnwickctl RUNTIME DESTINATION tarnwick ${portable})
install(CODE "
  set(FOLDER \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/tarnwick\")
  set(ASSETS \"${CMAKE_SOURCE_DIR}/assets\")
  set(HELP \"${TARNWICK_HELP}\")
  set(TRANSLATIONS \"${TARNWICK_TRANSLATIONS}\")
  set(SQLITE3 \"${SQLITE3_PROGRAM}\")
  include(\"${CMAKE_SOURCE_DIR}/cmake/LayProgramFolder.cmake\")" ${portable})
