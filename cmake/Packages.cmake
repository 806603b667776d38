# The packages: the program folder as an archive, and for Debian a package in the system's own places, which all users
# share. `cpack` makes both; scripts/package.sh does the whole of it.
#
# The component `system` is what the Debian package installs. It is no part of a plain `cmake --install`.
set(packaging ${CMAKE_SOURCE_DIR}/packaging)
set(system COMPONENT system EXCLUDE_FROM_ALL)
set(shared lib/tarnwick)

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
configure_file(${packaging}/debian/changelog.in ${CMAKE_BINARY_DIR}/packaging/changelog @ONLY)
configure_file(${packaging}/tarnwick.metainfo.xml.in ${CMAKE_BINARY_DIR}/packaging/example.tarnwick.tarnwick.metainfo.xml
               @ONLY)

# What the program needs of its folder, without what each user has of his own.
install(TARGETS tarnwick tarnwickctl RUNTIME DESTINATION ${shared} ${system})
install(FILES ${packaging}/shared-installation.txt assets/help.html DESTINATION ${shared} ${system})
install(FILES ${TARNWICK_FOLDER}/fresh/tarnwick.mdb assets/email.txt DESTINATION ${shared}/fresh ${system})
install(FILES assets/reports/green.jpg assets/reports/red.jpg DESTINATION ${shared}/reports ${system})
install(DIRECTORY assets/images DESTINATION ${shared} ${system} FILES_MATCHING PATTERN *.bmp PATTERN *.png)
install(DIRECTORY ${TARNWICK_HELP} DESTINATION ${shared} ${system})
if(TARGET translations)
  install(DIRECTORY ${TARNWICK_TRANSLATIONS} DESTINATION ${shared} ${system} FILES_MATCHING PATTERN *.qm)
endif()

# The desktop's places.
install(FILES ${packaging}/tarnwick.desktop DESTINATION share/applications ${system})
install(FILES ${CMAKE_BINARY_DIR}/packaging/example.tarnwick.tarnwick.metainfo.xml DESTINATION share/metainfo ${system})
install(DIRECTORY ${packaging}/icons/hicolor DESTINATION share/icons ${system})
install(FILES assets/art/tarnwick.svg DESTINATION share/icons/hicolor/scalable/apps ${system})

# Documentation.
install(FILES ${packaging}/debian/copyright DESTINATION share/doc/tarnwick ${system})
install(FILES docs/systemd/tarnwick.service DESTINATION share/doc/tarnwick/examples ${system} OPTIONAL)
install(FILES ${packaging}/debian/lintian-overrides DESTINATION share/lintian/overrides RENAME tarnwick ${system})
install(CODE "
  set(ROOT \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
  set(SOURCE \"${CMAKE_SOURCE_DIR}\")
  set(CHANGELOG \"${CMAKE_BINARY_DIR}/packaging/changelog\")
  set(SHARED ${shared})
  include(\"${CMAKE_SOURCE_DIR}/cmake/LaySystemFiles.cmake\")" ${system})

set(CPACK_PACKAGE_NAME tarnwick)
set(CPACK_PACKAGE_VENDOR "The Tarnwick developers")
set(CPACK_PACKAGE_CONTACT "The Tarnwick developers <developers@tarnwick.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.tarnwick.example/)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
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

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# To verify https pages; to open pages and reports; to play the alert sound.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, xdg-utils, pipewire-bin | pulseaudio-utils | alsa-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland, qt6-translations-l10n")
file(READ ${packaging}/debian/description CPACK_DEBIAN_PACKAGE_DESCRIPTION)

# Settings for the scripts below; a name that begins with CPACK_ reaches them.
set(CPACK_TARNWICK_BUILD ${CMAKE_BINARY_DIR})
set(CPACK_TARNWICK_TIME ${release_time})
set(CPACK_PROJECT_CONFIG_FILE ${packaging}/choose_component.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${packaging}/pack_again.cmake)
include(CPack)
