# Lays into the program folder FOLDER what it needs on a machine where nothing is installed for it: libraries, Qt's plug-ins
# and texts, licences, the list of what it is made of, and the manual pages and completions that a package would bring.
function(lay from to)
  cmake_path(GET to PARENT_PATH folder)
  file(MAKE_DIRECTORY "${FOLDER}/${folder}")
  file(COPY_FILE "${from}" "${FOLDER}/${to}")
  file(CHMOD "${FOLDER}/${to}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

lay("${SOURCE}/LICENSE" LICENSE)
lay("${SOURCE}/packaging/README.archive.txt" README.txt)
lay("${SOURCE}/docs/systemd/tarnwick.service" systemd/tarnwick.service)
foreach(program IN ITEMS tarnwick tarnwickctl)
  lay("${SOURCE}/docs/man/${program}.1" "man/man1/${program}.1")
endforeach()
foreach(shell IN ITEMS bash zsh fish)
  lay("${COMPLETIONS}/tarnwickctl.${shell}" "completions/tarnwickctl.${shell}")
endforeach()
file(GLOB texts "${QT_TRANSLATIONS}/qtbase_*.qm")
foreach(text IN LISTS texts)
  cmake_path(GET text FILENAME name)
  lay("${text}" "translations/qt/${name}")
endforeach()
file(WRITE "${FOLDER}/qt.conf" "[Paths]\nPrefix = .\nPlugins = plugins\nTranslations = translations/qt\n")
file(CHMOD "${FOLDER}/qt.conf" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
execute_process(
  COMMAND "${PYTHON}" "${SOURCE}/packaging/made_of.py" bundle --version ${VERSION} --time ${TIME}
    --folder "${FOLDER}" --plugins "${QT_PLUGINS}"
  COMMAND_ERROR_IS_FATAL ANY)
