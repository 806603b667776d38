# What reads the files of other programs: bookmarks and OPML, YAML, zip archives, Jet databases. Each may be missing; a file of that kind
# is then refused with a word about the package.
tarnwick_optional_library(Yaml::Yaml yaml-cpp/yaml.h yaml-cpp)
tarnwick_optional_library(Zip::Zip zip.h zip)
find_package(PkgConfig QUIET)
if(PkgConfig_FOUND AND NOT WIN32)
  pkg_check_modules(MDB QUIET IMPORTED_TARGET libmdb>=1.0)
endif()
