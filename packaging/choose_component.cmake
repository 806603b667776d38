# Read by cpack for each kind of package: the Debian packages hold the components `cli` and `window` under /usr, the
# archive the program folder with its libraries.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_TARNWICK_BUILD};Tarnwick;ALL;/")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
  set(CPACK_INSTALL_CMAKE_PROJECTS
      "${CPACK_TARNWICK_BUILD};Tarnwick;portable;/;${CPACK_TARNWICK_BUILD};Tarnwick;bundle;/")
endif()
