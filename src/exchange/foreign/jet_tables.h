// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A row of a table: what is not Null, by the names of the columns in lower case. Numbers are decimal, a yes/no is "1"
/// or "0", dates are "YYYY-MM-DD HH:MM:SS", texts are UTF-8, and pages are bytes (see `JetTables::read`).
class JetRow {
 public:
  const std::string* find(std::string_view column) const;
  std::string text(std::string_view column) const;
  bool flag(std::string_view column) const { return text(column) == "1"; }
  std::optional<std::string> value(std::string_view column) const;
  std::optional<std::int64_t> number(std::string_view column) const;

  void set(std::string column, std::string value) { values_.insert_or_assign(std::move(column), std::move(value)); }

 private:
  std::map<std::string, std::string, std::less<>> values_;
};

/// The tables of a Jet 3 or Jet 4 database. What is damaged in it raises ForeignError; what is damaged beyond that ends
/// the process, so it is read in one of its own (see `ListReading`).
class JetTables {
 public:
  /// `bytes` outlive this object.
  explicit JetTables(std::string_view bytes);
  ~JetTables();
  JetTables(const JetTables&) = delete;
  JetTables& operator=(const JetTables&) = delete;

  /// The tables that its users have made.
  const std::vector<std::string>& names() const { return names_; }

  /// Hands over the rows of the table of that name, in any letter case; false when there is none.
  ///
  /// A long text is a page: Jet 3 keeps its bytes as they were received. Jet 4 keeps characters, which were made of the
  /// bytes by Windows-1252, and are turned into those bytes again; a text with others was no page and is UTF-8.
  bool read(std::string_view table, const std::function<void(const JetRow& row)>& take);

 private:
  struct Library;
  std::unique_ptr<Library> library_;
  std::vector<std::string> names_;
};

}  // namespace tarnwick
