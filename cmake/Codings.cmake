# The compressions of pages: zlib's always, the others where their libraries are. What is not here is not asked for.
find_package(ZLIB REQUIRED)

# tarnwick_optional_library(<target> <header> <library>): the imported target of a library, where it is found.
function(tarnwick_optional_library target header library)
  find_path(TARNWICK_${library}_HEADERS ${header})
  find_library(TARNWICK_${library}_LIBRARY ${library})
  mark_as_advanced(TARNWICK_${library}_HEADERS TARNWICK_${library}_LIBRARY)
  if(TARNWICK_${library}_HEADERS AND TARNWICK_${library}_LIBRARY)
    add_library(${target} UNKNOWN IMPORTED GLOBAL)
    set_target_properties(${target} PROPERTIES
      IMPORTED_LOCATION ${TARNWICK_${library}_LIBRARY}
      INTERFACE_INCLUDE_DIRECTORIES ${TARNWICK_${library}_HEADERS})
  endif()
endfunction()
tarnwick_optional_library(Brotli::Decoder brotli/decode.h brotlidec)
tarnwick_optional_library(Zstandard::Zstandard zstd.h zstd)
