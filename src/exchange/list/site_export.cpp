// SPDX-License-Identifier: MIT
#include "exchange/list/site_export.h"

#include <algorithm>

#include "base/text.h"
#include "exchange/list/site_facts.h"
#include "exchange/list/site_list_csv.h"
#include "exchange/list/site_list_json.h"
#include "exchange/list/site_list_stored.h"

namespace tarnwick {

std::optional<ListFormat> listFormatOf(const std::string& file) {
  const std::string end = lowerCase(file.substr(std::min(file.rfind('.'), file.size())));
  return end == ".csv"    ? std::optional(ListFormat::csv)
         : end == ".json" ? std::optional(ListFormat::json)
                          : std::nullopt;
}

std::size_t writeSiteList(m& data, ListFormat format, ListColumns columns, const std::vector<ListedChannel>& channels,
                          const ByteSink& sink, const std::function<void(const ListedSite& site)>& look) {
  // Whether options are columns is of the same state as the options, whoever sets one meanwhile.
  const Snapshot oneState(data.database());
  columns.options = hasOptions(data);
  columns.rules = hasRules(data);
  columns.tags = hasTags(data);
  columns.kept = columns.baselines && hasKeptBaselines(data);
  const auto writer = format == ListFormat::csv ? makeCsvWriter(columns, sink, data.fields())
                                                : makeJsonWriter(columns, sink, data.fields());
  std::size_t count = 0;
  writer->begin(columns.options ? knownOptions(data, kAllSites) : OptionValues(), channels);
  readListedSites(data, columns, [&](const ListedSite& site) {
    writer->add(site);
    if (look) {
      look(site);
    }
    ++count;
  });
  writer->end();
  return count;
}

}  // namespace tarnwick
