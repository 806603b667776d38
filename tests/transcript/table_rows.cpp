// SPDX-License-Identifier: MIT
#include "transcript/table_rows.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace tarnwick::testing {
namespace {

struct Table {
  std::string name;
  std::vector<std::string> columns;
};

const std::vector<Table>& tables() {
  static const std::vector<Table> all = {
      {"sites",
       {"idSite", "url", "method", "active", "tInterval", "lastChecked", "alertEmail", "email", "sUserName",
        "sPassWord", "status", "success", "failure", "content_compare", "content_runtime"}},
      {"postVars", {"idPostVars", "idSite", "pname", "pvalue"}},
      {"tempPostVars", {"idPostVars", "idSite", "pname", "pvalue"}},
      {"control",
       {"id", "email", "smtp", "audio", "program", "timeout", "clogs", "creports", "cemail", "caudio", "cprogram"}},
      {"log", {"idSite", "url", "status", "errCode", "errDescription", "dateStamp", "content"}},
      {"test", {"id", "tname", "tvalue"}},
      {"methods", {"idSite", "method"}},
  };
  return all;
}

/// A text in quotes, with every byte of it; what else there is bare.
std::string literalOf(const std::string& column) {
  return "case typeof(" + column + ") when 'null' then 'Null' when 'text' then '''' || " + column +
         " || '''' else cast(" + column + " as text) end";
}

}  // namespace

void recordTables(const ProgramFolder& folder, Transcript& transcript) {
  for (const auto& [name, columns] : tables()) {
    const int count = std::stoi(folder.queryText("select count(*) from " + name));
    transcript.add("table", name + ": " + std::to_string(count) + " rows");
    for (int row = 0; row < count; ++row) {
      for (const std::string& column : columns) {
        transcript.add(column == columns.front() ? "row" : "",
                       column + " = " +
                           folder.queryText("select " + literalOf(column) + " from " + name +
                                            " order by rowid limit 1 offset " + std::to_string(row)));
      }
    }
  }
}

void recordFiles(const ProgramFolder& folder, Transcript& transcript) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
    names.insert(entry.path().lexically_relative(folder.path()).generic_string());
  }
  for (const std::string& name : names) {
    transcript.add("file", name);
  }
}

}  // namespace tarnwick::testing
