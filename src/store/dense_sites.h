// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/sql_connection.h"

namespace tarnwick {

/// Moves the pages of the sites into a table of their own, `pagePieces`, and what is left of the sites into `siteRows`;
/// a view `sites` takes the old table's place, with triggers that carry out on the two what is changed in it, by
/// whatever tool. A table `sites` that is not like the program's own, or holds what the new ones do not take, is left
/// as it is. False where there is too little room on the disk of `path` just now. Raises DataAccessError.
/// REQUIRES: a transaction.
bool makeSitesDense(SqlConnection& connection, const std::string& path);

}  // namespace tarnwick
