// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/sql_connection.h"

namespace tarnwick {

/// How the lines of the report page end.
inline constexpr const char* kReportLineEnd = "\r\n";

/// Gives a data cell's content: the field's name as the statement spells it, and its value.
using CellText = std::function<std::string(const std::string& name, const SqlValue& value)>;

/// A field's value as it stands but for "<", which is "&lt;": it must not become markup. Empty for Null.
std::string plainCell(const std::string& name, const SqlValue& value);

/// An HTML table of the recordset's current row and all after it: one header row of the field names, then a row for
/// each record on two alternating greys. Without a record it is an opening and a closing tag. Every line ends with
/// CR LF. What `cell` raises, and a DataAccessError of the recordset, travels.
std::string htmlTable(Recordset& rows, const CellText& cell);

}  // namespace tarnwick
