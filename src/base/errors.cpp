// SPDX-License-Identifier: MIT
#include "base/errors.h"

namespace tarnwick {
namespace {

constexpr std::size_t kShownStatementLength = 200;

std::string shortened(const std::string& statement) {
  if (statement.size() <= kShownStatementLength) {
    return statement;
  }
  return statement.substr(0, kShownStatementLength) + " ...";
}

std::string withStatement(const std::string& cause, const std::string& statement) {
  if (statement.empty()) {
    return cause;
  }
  return cause + "\n\nStatement: " + shortened(statement);
}

}  // namespace

DataAccessError::DataAccessError(const std::string& cause, const std::string& statement, Kind kind)
    : std::runtime_error(withStatement(cause, statement)),
      cause_(cause),
      statement_(shortened(statement)),
      kind_(kind) {}

FileError::FileError(const std::string& path, const std::string& cause)
    : std::runtime_error(path + ": " + cause), path_(path), cause_(cause) {}

}  // namespace tarnwick
