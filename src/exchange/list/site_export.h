// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "exchange/list/site_list.h"
#include "program/m.h"

namespace tarnwick {

/// What a list of sites is written as.
enum class ListFormat { csv, json };

/// The one that the ending of a file's name tells, in any letter case; nothing for others.
std::optional<ListFormat> listFormatOf(const std::string& file);

/// Writes the list as it is at one moment, with what is set and kept of all that `columns` asks for; returns how many
/// sites it has. `look` is shown each of them. Raises DataAccessError, and what the sink raises.
std::size_t writeSiteList(m& data, ListFormat format, ListColumns columns, const std::vector<ListedChannel>& channels,
                          const ByteSink& sink, const std::function<void(const ListedSite& site)>& look = {});

}  // namespace tarnwick
