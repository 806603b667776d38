// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/foreign/foreign_list.h"
#include "exchange/list/site_import.h"
#include "exchange/list/site_list.h"

namespace tarnwick {

/// The words for all kinds of files that can be imported: "csv", "json", "addresses", ...
std::vector<std::string> importWords();

/// The word for the kind of a file: by the ending of its name where that is .csv or .json, otherwise by its content.
/// Nothing when it does not show itself.
std::optional<std::string> wordOfFile(const std::string& name, std::string_view bytes);

/// A file of any kind, read.
struct AnyList {
  ForeignList content;
  /// Whether another program wrote it: its sites have no ids.
  bool foreign = false;
};

/// Reads a file of the kind of that word. What is wrong with it is added to `faults`; then nothing of it is to be used.
AnyList readAnyList(const std::string& word, std::string_view bytes, const Fields& fields, ListFaults& faults);

/// Plans the import of a list as `ImportPlanner` does; the list has its notes completed then, and keeps the settings
/// and the log that would be taken: those of a database come into an empty list alone.
class AnyListPlanner {
 public:
  AnyListPlanner(m& data, AnyList& list, ImportPlanner::Sites afterwards, ImportOptions how, ListFaults& faults);
  AnyListPlanner(const AnyListPlanner&) = delete;
  AnyListPlanner& operator=(const AnyListPlanner&) = delete;

  bool next() { return planner_->next(); }
  double done() const { return planner_->done(); }
  ImportPlan finish() &&;

 private:
  AnyList& list_;
  const ImportOptions how_;
  std::unique_ptr<ImportPlanner> planner_;
};

/// Carries it out as `ImportWriter` does.
class AnyListWriter {
 public:
  /// Plan and list outlive this object.
  AnyListWriter(m& data, const ImportPlan& plan, const AnyList& list) : data_(data), list_(list), sites_(data, plan) {}

  bool next();
  double done() const { return sites_.done(); }

 private:
  m& data_;
  const AnyList& list_;
  ImportWriter sites_;
  std::size_t nextResult_ = 0;
};

/// What an import of the list would do, as `planImport` tells it; `list` has its notes completed then, and keeps the
/// settings and the log that would be taken: those of a database come into an empty list alone. Raises DataAccessError.
ImportPlan planAnyList(m& data, AnyList& list, ImportOptions how, ListFaults& faults);

/// Does it. REQUIRES: one transaction around the planning and this, which is committed when this returns.
void carryOut(m& data, const ImportPlan& plan, const AnyList& list);

/// What is told of a note, for a terminal: `line 12, https://example.org/: not taken over: title "News"`.
std::string lineOf(const ForeignNote& note);
/// The same of a fault: "line 12: the file breaks off here".
std::string lineOf(const ListFaults::Fault& fault);

}  // namespace tarnwick
