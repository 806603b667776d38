// SPDX-License-Identifier: MIT
#include "report/html_tables.h"

namespace tarnwick {
namespace {

std::string line(const std::string& text) { return text + kReportLineEnd; }

std::string cellLine(const std::string& content) { return line("   <td>" + content + "</td>"); }

std::string headerRow(const Recordset& rows) {
  std::string html = line("<tr>");
  for (std::size_t field = 0; field < rows.fieldCount(); ++field) {
    html += cellLine(rows.fieldName(field));
  }
  return html + line("</tr>");
}

std::string dataRow(const Recordset& rows, bool odd, const CellText& cell) {
  std::string html = line(odd ? "<tr bgcolor=#d0d0d0>" : "<tr bgcolor=#e0e0e0>");
  for (std::size_t field = 0; field < rows.fieldCount(); ++field) {
    html += cellLine(cell(rows.fieldName(field), rows.field(field)));
  }
  return html + line("</tr>");
}

}  // namespace

std::string plainCell(const std::string&, const SqlValue& value) {
  std::string text = value.toText();
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at)) {
    text.replace(at, 1, "&lt;");
  }
  return text;
}

std::string htmlTable(Recordset& rows, const CellText& cell) {
  std::string html = line("<table width=500 border=1 cellpadding=2 cellspacing=0>");
  if (!rows.eof()) {
    html += headerRow(rows);
  }
  for (bool odd = true; !rows.eof(); rows.moveNext(), odd = !odd) {
    html += dataRow(rows, odd, cell);
  }
  return html + line("</table>");
}

}  // namespace tarnwick
