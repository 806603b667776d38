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

# What finds the parts of pages that rules name. Each may be missing; a rule in its language is then refused with a word
# about the package.
tarnwick_optional_library(RE2::RE2 re2/re2.h re2)
tarnwick_optional_library(Simdjson::Simdjson simdjson.h simdjson)
find_package(LibXml2 2.9 QUIET)
if(WIN32 AND TARGET LibXml2::LibXml2)
  set_property(TARGET LibXml2::LibXml2 APPEND PROPERTY INTERFACE_COMPILE_DEFINITIONS LIBXML_STATIC)
endif()
