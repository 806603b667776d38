# The program in other languages. The target `translations` compiles translations/tarnwick_<language>.ts; it is part of
# every build on a machine that has Qt's tool for it. `update_translations` takes the texts of the sources into these
# files and into the template for a new language, translations/tarnwick.ts.
set(TARNWICK_TRANSLATIONS ${CMAKE_BINARY_DIR}/translations)
set(translation_tools HINTS /usr/lib/qt6/bin "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}")
find_program(LRELEASE_PROGRAM NAMES lrelease lrelease-qt6 ${translation_tools})
find_program(LUPDATE_PROGRAM NAMES lupdate lupdate-qt6 ${translation_tools})
# The messages of the rooms that know no language, one a line, as the program and Qt's tool read them.
set(message_list ${CMAKE_SOURCE_DIR}/translations/messages.txt)
set(TARNWICK_MESSAGES ${CMAKE_BINARY_DIR}/messages)
set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${message_list})
file(READ ${message_list} messages)
string(REGEX REPLACE "#[^\n]*\n|\n\n+" "\n" messages "\n${messages}")
string(REPLACE "\"" "\\\"" messages "${messages}")
string(REGEX REPLACE "\n+([^\n]+)" "QT_TRANSLATE_NOOP(\"Messages\", \"\\1\"),\n" messages "${messages}")
file(CONFIGURE OUTPUT ${TARNWICK_MESSAGES}/message_templates.inc CONTENT "${messages}" @ONLY)
file(GLOB translation_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/translations/tarnwick_*.ts)

if(LRELEASE_PROGRAM)
  set(compiled_translations)
  foreach(file IN LISTS translation_files)
    cmake_path(GET file STEM LAST_ONLY name)
    set(compiled ${TARNWICK_TRANSLATIONS}/${name}.qm)
    add_custom_command(
      OUTPUT ${compiled}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${TARNWICK_TRANSLATIONS}
      COMMAND ${LRELEASE_PROGRAM} -silent -removeidentical ${file} -qm ${compiled}
      DEPENDS ${file}
      VERBATIM)
    list(APPEND compiled_translations ${compiled})
  endforeach()
  add_custom_target(translations DEPENDS ${compiled_translations})
endif()

if(LUPDATE_PROGRAM)
  # Without line numbers: a text that moves in its source changes nothing for the translator.
  find_program(PYTHON_PROGRAM python3 REQUIRED)
  set(option_texts ${CMAKE_BINARY_DIR}/option_texts.cpp)
  add_custom_target(update_translations
    COMMAND ${PYTHON_PROGRAM} cmake/option_texts.py src/store/option_table.cpp src/store/channel_table.cpp
      ${option_texts}
    COMMAND ${LUPDATE_PROGRAM} -silent -locations none -no-obsolete -I src src/ui src/platform/desktop ${option_texts}
      ${TARNWICK_MESSAGES}/message_templates.inc -ts translations/tarnwick.ts ${translation_files}
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
    VERBATIM)
endif()
