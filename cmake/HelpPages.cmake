# The user's guide as the pages of the online help: ${TARNWICK_HELP}, which the program folder and the packages hold as
# `help`, beside the page that the window opens.
set(TARNWICK_HELP ${CMAKE_BINARY_DIR}/help)
set(help_maker ${CMAKE_SOURCE_DIR}/cmake/make_help.py)

# The system's own: the library is a package of it.
find_program(TARNWICK_HELP_PYTHON python3 HINTS /usr/bin REQUIRED)
execute_process(COMMAND ${TARNWICK_HELP_PYTHON} -c "import markdown_it" RESULT_VARIABLE missing ERROR_QUIET)
if(missing)
  message(FATAL_ERROR "The help is made with markdown-it-py, which ${TARNWICK_HELP_PYTHON} does not find. "
                      "Install it: apt-get install python3-markdown-it")
endif()

file(GLOB help_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/*.md ${CMAKE_SOURCE_DIR}/docs/guide/*.md
     ${CMAKE_SOURCE_DIR}/docs/images/*)
add_custom_command(
  OUTPUT ${TARNWICK_HELP}/index.html
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${TARNWICK_HELP}
  COMMAND ${TARNWICK_HELP_PYTHON} ${help_maker} ${CMAKE_SOURCE_DIR}/docs ${CMAKE_SOURCE_DIR}/assets/help.html
    ${TARNWICK_HELP}
  DEPENDS ${help_maker} ${CMAKE_SOURCE_DIR}/assets/help.html ${help_sources}
  COMMENT "Making the pages of the help"
  VERBATIM)
add_custom_target(help_pages DEPENDS ${TARNWICK_HELP}/index.html)
