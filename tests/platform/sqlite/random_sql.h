// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/fresh_seed.h"

namespace tarnwick::testing {

/// Random sites and statements about them, in the program's dialect.
class RandomSql {
 public:
  explicit RandomSql(FreshSeed& dice) : dice_(dice) {}

  /// A text of any bytes but, unless `anyBytes`, NUL.
  std::string bytes(bool anyBytes = false);
  /// A text in quotes, now and then one that a site may have.
  std::string text();
  /// The values of a site, but its number, in the order of `kColumns`.
  std::string siteValues();
  static constexpr const char* kColumns =
      "url,method,active,tInterval,lastChecked,alertEmail,email,sUserName,sPassWord,status,success,failure,"
      "content_compare,content_runtime";

  /// A condition on a site that says nothing about its number unless `numbers`; so many levels deep at most.
  std::string condition(int depth, bool numbers);
  std::string select();
  /// A statement that changes sites.
  std::string change();

  /// The same statement with other blanks, comments and letter case.
  std::string spelledOtherwise(const std::string& sql);

 private:
  std::string page();
  std::string moment();
  std::string flag();
  std::string leaf(bool numbers);
  std::string number(std::int64_t least, std::int64_t most) { return std::to_string(dice_.between(least, most)); }

  FreshSeed& dice_;
  int inserted_ = 100;
};

}  // namespace tarnwick::testing
