// SPDX-License-Identifier: MIT
#include "exchange/foreign/any_list.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/text.h"
#include "base/visible_text.h"
#include "exchange/list/site_list_csv.h"
#include "exchange/list/site_list_json.h"

namespace tarnwick {
namespace {

constexpr const char* kCsv = "csv";
constexpr const char* kJson = "json";

/// Whether the first line names columns, of which the address must be one.
bool beginsAsCsv(std::string_view text) {
  std::string_view line = text.substr(0, text.find_first_of("\r\n"));
  bool named = false;
  while (!named && !line.empty()) {
    const std::size_t end = std::min(line.find(','), line.size());
    named = equalsIgnoringCase(trimmed(line.substr(0, end), " \t\"\xef\xbb\xbf"), list_name::url);
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return named;
}

}  // namespace

std::vector<std::string> importWords() {
  std::vector<std::string> words{kCsv, kJson};
  std::ranges::move(foreignWords(), std::back_inserter(words));
  return words;
}

std::optional<std::string> wordOfFile(const std::string& name, std::string_view bytes) {
  const std::string end = lowerCase(name.substr(std::min(name.rfind('.'), name.size())));
  if (end == ".csv") {
    return kCsv;
  }
  if (const auto kind = recognisedKind(bytes)) {
    return std::string(wordOf(*kind));
  }
  if (end == ".json" || trimmed(bytes).starts_with('{')) {
    return kJson;
  }
  return beginsAsCsv(bytes) ? std::optional<std::string>(kCsv) : std::nullopt;
}

AnyList readAnyList(const std::string& word, std::string_view bytes, const Fields& fields, ListFaults& faults) {
  AnyList list;
  if (const auto kind = foreignKindOf(word)) {
    list.content = readForeign(*kind, bytes, faults);
    list.foreign = true;
  } else {
    list.content.sites =
        word == kCsv ? readSiteListCsv(bytes, faults, fields) : readSiteListJson(bytes, faults, fields);
  }
  return list;
}

namespace {

/// Notes the addresses that the plan has left out since the file has them twice.
void noteRepeated(const ImportPlan& plan, ForeignList& list) {
  for (const RepeatedAddress& repeated : plan.repeated) {
    list.notes.push_back(
        {repeated.line,
         repeated.url,
         {"the address stands in the file before" +
          (repeated.firstLine == 0 ? std::string() : ", on line " + std::to_string(repeated.firstLine))},
         true});
  }
}

/// Those of a list that is in use are its own.
void keepOwnRecords(m& data, ForeignList& list) {
  if ((!list.settings.empty() || !list.log.empty()) && !isFresh(data.database())) {
    list.notes.push_back({0,
                          "",
                          {"the settings and the " + std::to_string(list.log.size()) +
                           " results of the log, which only an empty list takes"},
                          false});
    list.settings.clear();
    list.log.clear();
  }
}

ImportOptions howOf(const AnyList& list, ImportOptions how) {
  how.byAddress = list.foreign;
  return how;
}

}  // namespace

AnyListPlanner::AnyListPlanner(m& data, AnyList& list, ImportPlanner::Sites afterwards, ImportOptions how,
                               ListFaults& faults)
    : list_(list),
      how_(howOf(list, how)),
      planner_(std::make_unique<ImportPlanner>(data, list.content.sites, afterwards, how_, faults)) {
  keepOwnRecords(data, list.content);
}

ImportPlan AnyListPlanner::finish() && {
  ImportPlan plan = std::move(*planner_).finish();
  noteRepeated(plan, list_.content);
  return plan;
}

bool AnyListWriter::next() {
  if (sites_.next()) {
    return true;
  }
  if (nextResult_ == 0 && !list_.content.settings.empty()) {
    data_.storeSettings(list_.content.settings);
  }
  if (nextResult_ == list_.content.log.size()) {
    return false;
  }
  adoptLogRow(data_.database(), list_.content.log[nextResult_++]);
  return true;
}

ImportPlan planAnyList(m& data, AnyList& list, ImportOptions how, ListFaults& faults) {
  AnyListPlanner planner(data, list, ImportPlanner::Sites::taken, how, faults);
  while (planner.next()) {
  }
  return std::move(planner).finish();
}

void carryOut(m& data, const ImportPlan& plan, const AnyList& list) {
  AnyListWriter writer(data, plan, list);
  while (writer.next()) {
  }
}

std::string lineOf(const ListFaults::Fault& fault) {
  return (fault.line == 0 ? std::string() : "line " + std::to_string(fault.line) + ": ") + fault.text;
}

std::string lineOf(const ForeignNote& note) {
  std::string text = note.line == 0 ? std::string() : "line " + std::to_string(note.line);
  if (!note.subject.empty()) {
    text += (text.empty() ? "" : ", ") + visibleText(note.subject);
  }
  text += text.empty() ? "" : ": ";
  text += note.leftOut ? "left out: " : "not taken over: ";
  bool first = true;
  for (const std::string& thing : note.things) {
    text += (first ? "" : ", ") + thing;
    first = false;
  }
  return text;
}

}  // namespace tarnwick
