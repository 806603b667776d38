// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/list/site_list.h"

namespace tarnwick {

/// Reads the list of sites from CSV (RFC 4180): the first line names the columns, in any order, of which only url must
/// be there; an empty number or yes/no counts as left out. Bytes are kept as they are; a UTF-8 byte order mark is
/// skipped. What is wrong is added to `faults`, and the sites concerned are left out. Raises nothing.
std::vector<ListedSite> readSiteListCsv(std::string_view text, ListFaults& faults,
                                        const Fields& fields = programFields());

/// Writes it, with CR LF line ends.
std::unique_ptr<SiteListWriter> makeCsvWriter(ListColumns columns, ByteSink sink,
                                              const Fields& fields = programFields());

}  // namespace tarnwick
