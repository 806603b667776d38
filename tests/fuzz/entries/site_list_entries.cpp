#include "fuzz/entries/site_list_entries.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "cli/list/site_list_csv.h"
#include "cli/list/site_list_json.h"

namespace tarnwick::testing {
namespace {

using Reader = std::vector<ListedSite> (*)(std::string_view text, ListFaults& faults);
using WriterMaker = std::unique_ptr<SiteListWriter> (*)(ListColumns columns, ByteSink sink);

std::string written(WriterMaker make, const std::vector<ListedSite>& sites) {
  std::string text;
  const auto writer = make({.passwords = true, .baselines = true}, [&](std::string_view bytes) { text += bytes; });
  writer->begin();
  std::ranges::for_each(sites, [&](const ListedSite& site) { writer->add(site); });
  writer->end();
  return text;
}

bool isSame(const ListedSite& one, const ListedSite& other) {
  return one.idSite == other.idSite && one.site == other.site && one.postVars == other.postVars &&
         one.baseline == other.baseline;
}

void readAndWrite(std::string_view input, Reader read, WriterMaker make) {
  ListFaults faults;
  const std::vector<ListedSite> sites = read(input, faults);
  const auto lines = 1 + static_cast<std::size_t>(std::ranges::count(input, '\n'));
  for (const ListFaults::Fault& fault : faults.kept()) {
    require(fault.line >= 1 && fault.line <= lines, "a fault stands on a line that is not there");
    require(!fault.text.empty() && fault.text.find_first_of("\r\n\x1b") == std::string::npos, "a fault is no line");
  }
  ListFaults none;
  const std::string text = written(make, sites);
  const std::vector<ListedSite> back = read(text, none);
  require(none.none(), "what was written has faults");
  require(std::ranges::equal(sites, back, isSame), "what was written does not come back");
  require(written(make, back) == text, "what was read is written otherwise");
}

}  // namespace

void fuzzSiteListCsv(std::string_view input) { readAndWrite(input, readSiteListCsv, makeCsvWriter); }

void fuzzSiteListJson(std::string_view input) { readAndWrite(input, readSiteListJson, makeJsonWriter); }

}  // namespace tarnwick::testing
