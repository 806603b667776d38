// SPDX-License-Identifier: MIT
#include "platform/sqlite/translated_statements.h"

#include <utility>
#include <variant>

#include "base/sql_value.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMostRecent = 128;

}  // namespace

const SqlCommand& TranslatedStatements::translated(std::string_view sql, Pages pages) {
  if (pages != std::exchange(pages_, pages)) {
    recent_.clear();
    earlier_.clear();
  }
  SqlCommand& command = known(sql);
  if (auto* const plain = std::get_if<PlainStatement>(&command); plain != nullptr && plain->nowParameter != 0) {
    plain->parameters[plain->nowParameter - 1] = SqlValue(dateTimeText(clock_.localNow()));
  }
  return command;
}

// What was not asked for while so many others were is forgotten.
SqlCommand& TranslatedStatements::known(std::string_view sql) {
  if (const auto found = recent_.find(sql); found != recent_.end()) {
    return found->second;
  }
  if (recent_.size() >= kMostRecent) {
    earlier_ = std::exchange(recent_, {});
  }
  if (const auto found = earlier_.find(sql); found != earlier_.end()) {
    return recent_.insert(earlier_.extract(found)).position->second;
  }
  const auto added = recent_.try_emplace(std::string(sql)).first;
  try {
    added->second = translateSql(added->first, clock_, pages_);
  } catch (...) {
    recent_.erase(added);
    throw;
  }
  return added->second;
}

}  // namespace tarnwick
