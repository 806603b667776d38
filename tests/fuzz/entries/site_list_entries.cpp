// SPDX-License-Identifier: MIT
#include "fuzz/entries/site_list_entries.h"

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <string>
#include <vector>

#include "exchange/foreign/any_list.h"
#include "exchange/list/site_import.h"
#include "exchange/list/site_list_csv.h"
#include "exchange/list/site_list_json.h"

namespace tarnwick::testing {
namespace {

using Reader = std::vector<ListedSite> (*)(std::string_view text, ListFaults& faults, const Fields& fields);
using WriterMaker = std::unique_ptr<SiteListWriter> (*)(ListColumns columns, ByteSink sink, const Fields& fields);

std::string written(WriterMaker make, const std::vector<ListedSite>& sites) {
  std::string text;
  const auto writer = make(
      {.passwords = true, .baselines = true, .options = true}, [&](std::string_view bytes) { text += bytes; },
      programFields());
  const auto isForAll = [](const ListedSite& site) { return site.idSite == kAllSites; };
  const auto all = std::ranges::find_if(sites, isForAll);
  writer->begin(all == sites.end() ? OptionValues() : all->options);
  for (const ListedSite& site : sites) {
    if (!isForAll(site)) {
      writer->add(site);
    }
  }
  writer->end();
  return text;
}

bool isSame(const ListedSite& one, const ListedSite& other) {
  return one.idSite == other.idSite && one.site == other.site && one.postVars == other.postVars &&
         one.baseline == other.baseline && one.options == other.options;
}

void readAndWrite(std::string_view input, Reader read, WriterMaker make) {
  ListFaults faults;
  const std::clock_t begun = std::clock();
  std::vector<ListedSite> sites = read(input, faults, programFields());
  // Some hundred times what a plain build takes.
  const auto most = static_cast<std::clock_t>(1 + input.size() / 50000) * CLOCKS_PER_SEC;
  require(std::clock() - begun <= most, "reading takes longer than the file is long");
  require(sites.size() <= list_bound::sites + 1, "there are more sites than ids");
  const auto lines = 1 + static_cast<std::size_t>(std::ranges::count(input, '\n'));
  for (const ListFaults::Fault& fault : faults.kept()) {
    require(fault.line >= 1 && fault.line <= lines, "a fault stands on a line that is not there");
    require(!fault.text.empty() && fault.text.find_first_of("\r\n\x1b") == std::string::npos, "a fault is no line");
  }
  ListFaults none;
  const std::string text = written(make, sites);
  std::vector<ListedSite> back = read(text, none, programFields());
  require(none.none(), "what was written has faults");
  require(written(make, back) == text, "what was read is written otherwise");
  for (std::vector<ListedSite>* list : {&sites, &back}) {
    std::erase_if(*list, [](const ListedSite& site) { return site.idSite == kAllSites; });
  }
  require(std::ranges::equal(sites, back, isSame), "what was written does not come back");
}

void requireLine(const std::string& text) {
  require(!text.empty() && text.find_first_of("\r\n\x1b") == std::string::npos, "what is told is no line");
}

}  // namespace

void fuzzSiteListCsv(std::string_view input) { readAndWrite(input, readSiteListCsv, makeCsvWriter); }

void fuzzSiteListJson(std::string_view input) { readAndWrite(input, readSiteListJson, makeJsonWriter); }

void fuzzForeignList(std::string_view input) {
  using enum ForeignKind;
  recognisedKind(input);
  // A database is read by a library that damages may end; that is done in a process of its own.
  for (const ForeignKind kind : {addresses, bookmarks, opml, urlwatch, changedetection}) {
    ListFaults faults;
    const ForeignList list = readForeign(kind, input, faults);
    require(list.sites.size() <= list_bound::sites, "there are more sites than ids");
    require(faults.none() || list.sites.empty(), "there are sites of a bad file");
    require(!faults.none() || !list.sites.empty() || !list.notes.empty(), "nothing is told of the file");
    for (const ListFaults::Fault& fault : faults.kept()) {
      requireLine(lineOf(fault));
    }
    for (const ForeignNote& note : list.notes) {
      requireLine(lineOf(note));
    }
    for (const ListedSite& site : list.sites) {
      ListFaults none;
      ListValues values(0, none);
      checkTexts(site.site, values);
      require(none.none(), "a site is none that an import takes");
    }
  }
}

}  // namespace tarnwick::testing
