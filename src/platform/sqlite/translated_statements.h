// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/clock.h"
#include "platform/sqlite/sql_dialect.h"

namespace tarnwick {

/// Statements of the program's dialect as SQLite takes them. Most are asked again word for word, site by site and pass
/// by pass: those are translated once.
class TranslatedStatements {
 public:
  explicit TranslatedStatements(const Clock& clock) : clock_(clock) {}

  /// What `translateSql` makes of it, now. Stays valid until the next call. Raises what that raises.
  const SqlCommand& translated(std::string_view sql, Pages pages);

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  /// The texts that a command refers to lie in its key, which stays where it is.
  using Commands = std::unordered_map<std::string, SqlCommand, Hash, std::equal_to<>>;

  SqlCommand& known(std::string_view sql);

  const Clock& clock_;
  Pages pages_ = Pages::inSites;
  Commands recent_{};
  Commands earlier_{};
};

}  // namespace tarnwick
