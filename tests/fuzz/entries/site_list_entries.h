// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "fuzz/entries/fuzz_target.h"

namespace tarnwick::testing {

// A list of sites of any bytes gives sites or faults, each with a line of the text; and the sites that are read come
// back when they are written and read again.
void fuzzSiteListCsv(std::string_view input);
void fuzzSiteListJson(std::string_view input);
// So does a file of another program, by whatever reader; what is told of it are lines.
void fuzzForeignList(std::string_view input);

inline constexpr std::array<FuzzTarget, 3> kSiteListFuzzTargets{
    {{"site_list_csv", fuzzSiteListCsv}, {"site_list_json", fuzzSiteListJson}, {"foreign_list", fuzzForeignList}}};

}  // namespace tarnwick::testing
