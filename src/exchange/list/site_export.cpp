// SPDX-License-Identifier: MIT
#include "exchange/list/site_export.h"

#include <algorithm>

#include "base/text.h"
#include "exchange/list/site_facts.h"
#include "exchange/list/site_list_csv.h"
#include "exchange/list/site_list_json.h"

namespace tarnwick {
namespace {

/// Whether options are columns is of the same state as the options, whoever sets one meanwhile.
ListColumns withWhatIsSet(m& data, ListColumns columns) {
  columns.options = hasOptions(data);
  columns.rules = hasRules(data);
  columns.tags = hasTags(data);
  columns.kept = columns.baselines && hasKeptBaselines(data);
  return columns;
}

}  // namespace

std::optional<ListFormat> listFormatOf(const std::string& file) {
  const std::string end = lowerCase(file.substr(std::min(file.rfind('.'), file.size())));
  return end == ".csv"    ? std::optional(ListFormat::csv)
         : end == ".json" ? std::optional(ListFormat::json)
                          : std::nullopt;
}

SiteListExport::SiteListExport(m& data, ListFormat format, ListColumns columns,
                               const std::vector<ListedChannel>& channels, const ByteSink& sink)
    : columns_(withWhatIsSet(data, columns)),
      writer_(format == ListFormat::csv ? makeCsvWriter(columns_, sink, data.fields())
                                        : makeJsonWriter(columns_, sink, data.fields())),
      sites_(data, columns_) {
  writer_->begin(columns_.options ? knownOptions(data, kAllSites) : OptionValues(), channels);
}

bool SiteListExport::next(const std::function<void(const ListedSite& site)>& look) {
  const auto site = sites_.next();
  if (!site) {
    writer_->end();
    return false;
  }
  writer_->add(*site);
  if (look) {
    look(*site);
  }
  ++count_;
  return true;
}

std::size_t writeSiteList(m& data, ListFormat format, ListColumns columns, const std::vector<ListedChannel>& channels,
                          const ByteSink& sink, const std::function<void(const ListedSite& site)>& look) {
  const Snapshot oneState(data.database());
  SiteListExport list(data, format, columns, channels, sink);
  while (list.next(look)) {
  }
  return list.count();
}

}  // namespace tarnwick
