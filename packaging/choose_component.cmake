# Read by cpack for each kind of package: the Debian package holds the component `system` under /usr, the archive the
# program folder.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_TARNWICK_BUILD};Tarnwick;system;/")
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
endif()
