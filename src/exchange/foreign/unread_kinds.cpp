// SPDX-License-Identifier: MIT
// What stands for the readers that this build has no library for.
#include <string>

#include "exchange/foreign/foreign_sites.h"

namespace tarnwick {

namespace {

[[maybe_unused]] [[noreturn]] void refuse(const char* kind, const char* library, const char* package) {
  throw ForeignError(0, std::string("this Tarnwick was built without ") + library + ", so it does not read " + kind +
                            ": install " + package + " and build it again, or give a plain list of addresses");
}

}  // namespace

#ifndef TARNWICK_MARKUP
void readBookmarks(std::string_view /*text*/, ForeignSites& /*sites*/) {
  refuse("bookmarks", "libxml2", "libxml2-dev");
}
void readOpml(std::string_view /*text*/, ForeignSites& /*sites*/) { refuse("OPML", "libxml2", "libxml2-dev"); }
#endif

#ifndef TARNWICK_YAML
void readUrlwatch(std::string_view /*text*/, ForeignSites& /*sites*/) {
  refuse("lists of urlwatch", "yaml-cpp", "libyaml-cpp-dev");
}
#endif

#ifndef TARNWICK_JET
void readJet(std::string_view /*bytes*/, ForeignSites& /*sites*/) {
  refuse("Jet databases", "mdbtools", "mdbtools-dev");
}
#endif

#ifndef TARNWICK_ZIP
std::vector<ZipMember> zipMembers(std::string_view /*bytes*/, const ZipFilter& /*isWanted*/) {
  refuse("zip archives", "libzip", "libzip-dev");
}
#endif

}  // namespace tarnwick
