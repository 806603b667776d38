// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "exchange/list/site_list.h"

namespace tarnwick {

/// Reads the list of sites from JSON: {"tarnwick": 1, "sites": [{"url": ..., ...}, ...]}. Texts are strings, or
/// {"base64": ...} for bytes that are no UTF-8; POST variables are an array of {"pname": ..., "pvalue": ...}. A member
/// that is left out or null is not told. What is wrong is added to `faults`, on the line where its site begins, and
/// the sites concerned are left out. Raises nothing.
std::vector<ListedSite> readSiteListJson(std::string_view text, ListFaults& faults,
                                         const Fields& fields = programFields());

/// Writes it, a line for each site.
std::unique_ptr<SiteListWriter> makeJsonWriter(ListColumns columns, ByteSink sink,
                                               const Fields& fields = programFields());

}  // namespace tarnwick
