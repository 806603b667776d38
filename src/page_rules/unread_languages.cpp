// SPDX-License-Identifier: MIT
// What stands for the languages that this build has no library for.
#include <string>

#include "page_rules/languages.h"
#include "page_rules/simplified_page.h"

namespace tarnwick {

namespace {

[[maybe_unused]] [[noreturn]] void refuse(const char* library, const char* package) {
  throw RuleFault{std::string("this Tarnwick was built without ") + library + ". Install " + package +
                  " and build it again, or name lines."};
}

}  // namespace

#ifndef TARNWICK_REGEX
std::vector<ByteRange> foundByRegex(const std::string& /*rule*/, std::string_view /*page*/) {
  refuse("RE2", "libre2-dev");
}
#endif

#ifndef TARNWICK_MARKUP
std::vector<ByteRange> foundByXPath(const std::string& /*rule*/, std::string_view /*page*/) {
  refuse("libxml2", "libxml2-dev");
}

std::string simplifiedPage(std::string_view /*html*/) { return {}; }
#endif

#ifndef TARNWICK_POINTER
std::vector<ByteRange> foundByPointer(const std::string& /*rule*/, std::string_view /*page*/) {
  refuse("simdjson", "libsimdjson-dev");
}
#endif

}  // namespace tarnwick
