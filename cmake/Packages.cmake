# What `cmake --install` lays into the system's own places for all users, in two components: `cli`, the terminal tool with
# what needs no desktop, and `window`. For Debian each is a package. Beside these the archive: the program folder with the
# libraries that it needs. `cpack` makes all of it; scripts/package.sh does the whole.
include(GNUInstallDirs)
set(packaging ${CMAKE_SOURCE_DIR}/packaging)
set(shared ${CMAKE_INSTALL_LIBDIR}/tarnwick)
set(TARNWICK_ZSH_COMPLETIONS ${CMAKE_INSTALL_DATADIR}/zsh/site-functions CACHE STRING
    "Where zsh looks for completions, below the prefix")
set(TARNWICK_SYSTEMD lib/systemd/system CACHE STRING "Where systemd looks for units, below the prefix")
set(TARNWICK_SYSUSERS lib/sysusers.d CACHE STRING "Where systemd looks for users, below the prefix")

# The newest entry of the change log names the version and its day, which every file in a package bears.
file(STRINGS ${CMAKE_SOURCE_DIR}/CHANGELOG.md releases REGEX "^## \\[[0-9.]+\\] - [0-9-]+$")
list(GET releases 0 release)
string(REGEX MATCH "\\[(.*)\\] - (.*)$" release "${release}")
if(NOT CMAKE_MATCH_1 STREQUAL PROJECT_VERSION)
  message(FATAL_ERROR "CHANGELOG.md begins with version ${CMAKE_MATCH_1}, the project is ${PROJECT_VERSION}: "
                      "write the entry of this version.")
endif()
set(release_day ${CMAKE_MATCH_2})
execute_process(COMMAND date -u -d ${release_day} +%s OUTPUT_VARIABLE release_time OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND env LC_ALL=C date -u -R -d ${release_day} OUTPUT_VARIABLE release_date
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
# Of the packages: counts what changes in them alone.
set(package_release 2)
configure_file(${packaging}/debian/changelog.in ${CMAKE_BINARY_DIR}/packaging/changelog @ONLY)
configure_file(${packaging}/tarnwick.metainfo.xml.in ${CMAKE_BINARY_DIR}/packaging/example.tarnwick.tarnwick.metainfo.xml
               @ONLY)

# The completions, printed by the tool itself: they know what it knows.
set(completions ${CMAKE_BINARY_DIR}/packaging/completions)
set(completion_files)
foreach(shell IN ITEMS bash zsh fish)
  set(file ${completions}/tarnwickctl.${shell})
  add_custom_command(OUTPUT ${file}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${completions}
    COMMAND sh -c "\"$0\" --folder / completion ${shell} >\"$1\"" $<TARGET_FILE:tarnwickctl> ${file}
    DEPENDS tarnwickctl
    VERBATIM)
  list(APPEND completion_files ${file})
endforeach()
add_custom_target(completions ALL DEPENDS ${completion_files})

# What the programs need of their folder, without what each user has of his own.
install(TARGETS tarnwickctl RUNTIME DESTINATION ${shared} COMPONENT cli)
install(FILES ${packaging}/shared-installation.txt DESTINATION ${shared} COMPONENT cli)
install(FILES ${TARNWICK_FOLDER}/fresh/tarnwick.mdb assets/email.txt assets/recovered.txt DESTINATION ${shared}/fresh COMPONENT cli)
install(FILES assets/reports/green.jpg assets/reports/red.jpg DESTINATION ${shared}/reports COMPONENT cli)
install(DIRECTORY assets/channels DESTINATION ${shared} COMPONENT cli FILES_MATCHING PATTERN *.txt)
install(TARGETS tarnwick RUNTIME DESTINATION ${shared} COMPONENT window)
install(FILES assets/help.html DESTINATION ${shared} COMPONENT window)
install(DIRECTORY assets/images DESTINATION ${shared} COMPONENT window FILES_MATCHING PATTERN *.bmp PATTERN *.png)
install(DIRECTORY ${TARNWICK_HELP} DESTINATION ${shared} COMPONENT window)
if(TARGET translations)
  install(DIRECTORY ${TARNWICK_TRANSLATIONS} DESTINATION ${shared} COMPONENT cli FILES_MATCHING PATTERN *.qm)
endif()

# The shells', the service manager's and the desktop's places.
install(FILES ${completions}/tarnwickctl.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME tarnwickctl COMPONENT cli)
install(FILES ${completions}/tarnwickctl.zsh DESTINATION ${TARNWICK_ZSH_COMPLETIONS} RENAME _tarnwickctl COMPONENT cli)
install(FILES ${completions}/tarnwickctl.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT cli)
install(FILES ${packaging}/sysusers.conf DESTINATION ${TARNWICK_SYSUSERS} RENAME tarnwick.conf COMPONENT cli)
install(FILES ${packaging}/tarnwick.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT window)
install(FILES ${CMAKE_BINARY_DIR}/packaging/example.tarnwick.tarnwick.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT window)
install(DIRECTORY ${packaging}/icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons COMPONENT window)
install(FILES assets/art/tarnwick.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT window)

# Links, units, compressed documentation, what each is made of.
set(components cli window)
set(programs tarnwickctl tarnwick)
set(packages tarnwick-cli tarnwick)
foreach(component program package IN ZIP_LISTS components programs packages)
  install(FILES ${packaging}/debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package} COMPONENT ${component})
  install(CODE "
    set(ROOT \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
    set(SOURCE \"${CMAKE_SOURCE_DIR}\")
    set(CHANGELOG \"${CMAKE_BINARY_DIR}/packaging/changelog\")
    set(BIN \"${CMAKE_INSTALL_BINDIR}\")
    set(SHARED \"${shared}\")
    set(MAN \"${CMAKE_INSTALL_MANDIR}\")
    set(DOC \"${CMAKE_INSTALL_DATADIR}/doc/${package}\")
    set(UNITS \"${TARNWICK_SYSTEMD}\")
    set(PROGRAM ${program})
    set(PYTHON \"${TARNWICK_HELP_PYTHON}\")
    set(VERSION ${PROJECT_VERSION})
    set(TIME ${release_time})
    include(\"${CMAKE_SOURCE_DIR}/cmake/LaySystemFiles.cmake\")" COMPONENT ${component})
endforeach()
install(FILES ${packaging}/debian/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME tarnwick
        COMPONENT window)
install(FILES ${packaging}/debian/cli/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
        RENAME tarnwick-cli COMPONENT cli)

# The archive: the program folder that ProgramFolder.cmake lays, with its libraries, licences and what it is made of.
install(CODE "
  set(FOLDER \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/tarnwick\")
  set(SOURCE \"${CMAKE_SOURCE_DIR}\")
  set(COMPLETIONS \"${completions}\")
  set(QT_PLUGINS \"${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}\")
  set(QT_TRANSLATIONS \"${QT6_INSTALL_PREFIX}/${QT6_INSTALL_TRANSLATIONS}\")
  set(PYTHON \"${TARNWICK_HELP_PYTHON}\")
  set(VERSION ${PROJECT_VERSION})
  set(TIME ${release_time})
  include(\"${CMAKE_SOURCE_DIR}/cmake/LayBundle.cmake\")" COMPONENT bundle EXCLUDE_FROM_ALL)

set(CPACK_PACKAGE_NAME tarnwick)
set(CPACK_PACKAGE_VENDOR "The Tarnwick developers")
set(CPACK_PACKAGE_CONTACT "The Tarnwick developers <developers@tarnwick.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.tarnwick.example/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
string(TOLOWER ${CMAKE_SYSTEM_NAME} system)
set(CPACK_PACKAGE_FILE_NAME tarnwick-${PROJECT_VERSION}-${system}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_GENERATOR TGZ)
find_program(DPKG_SHLIBDEPS dpkg-shlibdeps)
if(DPKG_SHLIBDEPS)
  list(APPEND CPACK_GENERATOR DEB)
endif()
# The archive unpacks to the program folder itself.
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_COMPONENTS_ALL cli window)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${package_release})
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
file(READ ${packaging}/debian/description CPACK_DEBIAN_WINDOW_DESCRIPTION)
file(READ ${packaging}/debian/cli/description CPACK_DEBIAN_CLI_DESCRIPTION)
set(CPACK_DEBIAN_WINDOW_PACKAGE_NAME tarnwick)
set(CPACK_DEBIAN_CLI_PACKAGE_NAME tarnwick-cli)
set(CPACK_DEBIAN_WINDOW_PACKAGE_DEPENDS "tarnwick-cli (= ${PROJECT_VERSION}-${package_release})")
# To verify https pages; to open pages and reports; to play the alert sound; to reach a key ring.
set(CPACK_DEBIAN_CLI_PACKAGE_RECOMMENDS ca-certificates)
set(CPACK_DEBIAN_CLI_PACKAGE_SUGGESTS "tarnwick, pipewire-bin | pulseaudio-utils | alsa-utils")
set(CPACK_DEBIAN_WINDOW_PACKAGE_RECOMMENDS "ca-certificates, libsecret-1-0, xdg-utils, pipewire-bin | pulseaudio-utils | alsa-utils")
set(CPACK_DEBIAN_WINDOW_PACKAGE_SUGGESTS "qt6-wayland, qt6-translations-l10n")
# Until 1.0.0-1 one package held it all.
set(CPACK_DEBIAN_CLI_PACKAGE_BREAKS "tarnwick (<< 1.0.0-2)")
set(CPACK_DEBIAN_CLI_PACKAGE_REPLACES "tarnwick (<< 1.0.0-2)")
set(CPACK_DEBIAN_CLI_PACKAGE_CONTROL_EXTRA
    "${packaging}/debian/cli/postinst;${packaging}/debian/cli/prerm;${packaging}/debian/cli/postrm")

# Settings for the scripts below; a name that begins with CPACK_ reaches them.
set(CPACK_TARNWICK_BUILD ${CMAKE_BINARY_DIR})
set(CPACK_TARNWICK_TIME ${release_time})
set(CPACK_PROJECT_CONFIG_FILE ${packaging}/choose_component.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${packaging}/pack_again.cmake)
include(CPack)
