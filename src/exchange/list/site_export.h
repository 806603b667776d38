// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "exchange/list/site_list.h"
#include "exchange/list/site_list_stored.h"
#include "program/m.h"

namespace tarnwick {

/// What a list of sites is written as.
enum class ListFormat { csv, json };

/// The one that the ending of a file's name tells, in any letter case; nothing for others.
std::optional<ListFormat> listFormatOf(const std::string& file);

/// Writes the list, a site at a time, so that others are not held up by a long one. REQUIRES: a Snapshot around all of
/// it.
class SiteListExport {
 public:
  /// What is set and kept of all that `columns` asks for. `data` outlives this object. Raises DataAccessError, and what
  /// the sink raises, here as below.
  SiteListExport(m& data, ListFormat format, ListColumns columns, const std::vector<ListedChannel>& channels,
                 const ByteSink& sink);

  /// Writes the next site and shows it to `look`; false when the list is complete.
  bool next(const std::function<void(const ListedSite& site)>& look = {});
  /// How many sites are written.
  std::size_t count() const { return count_; }

 private:
  ListColumns columns_;
  std::unique_ptr<SiteListWriter> writer_;
  ListedSiteReader sites_;
  std::size_t count_ = 0;
};

/// Writes the list as it is at one moment, with what is set and kept of all that `columns` asks for; returns how many
/// sites it has. `look` is shown each of them. Raises DataAccessError, and what the sink raises.
std::size_t writeSiteList(m& data, ListFormat format, ListColumns columns, const std::vector<ListedChannel>& channels,
                          const ByteSink& sink, const std::function<void(const ListedSite& site)>& look = {});

}  // namespace tarnwick
