// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "store/text_table.h"

namespace tarnwick::testing {

/// What the grid shows of a site, as the texts of a site table.
struct SiteCells {
  std::string id;
  std::string url = "http://localhost";
  std::string active = "True";
  std::string status = "NULL";
  std::string success = "NULL";
  std::string failure = "NULL";
  std::string lastChecked = "NULL";
};

TextTable siteTable(const std::vector<SiteCells>& sites);

}  // namespace tarnwick::testing
