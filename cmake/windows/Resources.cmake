# tarnwick_resources(<target> <description>): the icon, the version and the manifest of a program for Windows.
enable_language(RC)

function(tarnwick_resources target description)
  set(TARNWICK_FILE ${target})
  set(TARNWICK_DESCRIPTION ${description})
  set(folder ${CMAKE_SOURCE_DIR}/assets/windows)
  configure_file(${folder}/program.rc.in ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc @ONLY)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  # The icon and the manifest are looked up beside their sources.
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTIES
    INCLUDE_DIRECTORIES ${folder}
    OBJECT_DEPENDS "${folder}/tarnwick.ico;${folder}/program.manifest")
endfunction()
