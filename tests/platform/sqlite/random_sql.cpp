// SPDX-License-Identifier: MIT
#include "random_sql.h"

#include <array>
#include <cctype>
#include <chrono>

#include "platform/clock.h"
#include "support/hand_clock.h"

namespace tarnwick::testing {
namespace {

using namespace std::string_literals;

std::string quoted(const std::string& text) {
  std::string literal = "'";
  for (const char c : text) {
    literal.append(c == '\'' ? 2 : 1, c);
  }
  return literal + "'";
}

}  // namespace

std::string RandomSql::bytes(bool anyBytes) {
  static const std::array<std::string, 8> kTraps{"'", "''", "\"]`", "--", "/* x", "?1", " = true", ";\r\n"};
  std::string text;
  for (std::size_t left = dice_.below(6); left > 0; --left) {
    text +=
        dice_.oneIn(2) ? dice_.oneOf(kTraps) : std::string(1, static_cast<char>(dice_.between(anyBytes ? 0 : 1, 255)));
  }
  return text;
}

std::string RandomSql::text() {
  static const std::array<const char*, 6> kUsual{"''", "'get'", "'http://a/'", "'NULL'", "'It''s'", "'top 1 now()'"};
  return dice_.oneIn(2) ? dice_.oneOf(kUsual) : quoted(bytes());
}

std::string RandomSql::page() {
  static const std::array<std::string, 4> kPages{"''", "'a page'", "'It''s a page'", "NULL"};
  return dice_.oneIn(4) ? quoted(bytes(true)) : dice_.oneOf(kPages);
}

std::string RandomSql::moment() {
  return quoted(dateTimeText(HandClock().localNow() + std::chrono::seconds(dice_.between(-90'000, 4000))));
}

std::string RandomSql::flag() {
  static const std::array<const char*, 6> kFlags{"0", "1", "True", "False", "-1", "NULL"};
  return dice_.oneOf(kFlags);
}

std::string RandomSql::siteValues() {
  const auto orNull = [this](std::string value) { return dice_.oneIn(5) ? "NULL"s : std::move(value); };
  std::string values = orNull(text());
  for (const std::string& value :
       {orNull(text()), flag(), orNull(number(0, 5)), orNull(moment()), flag(), orNull(text()), orNull(text()),
        orNull(text()), flag(), orNull(number(0, 3)), orNull(number(0, 3)), page(), page()}) {
    values += "," + value;
  }
  return values;
}

std::string RandomSql::leaf(bool numbers) {
  static const std::array<const char*, 4> kFlags{"active", "status", "[alertEmail]", "`status`"};
  static const std::array<const char*, 4> kTexts{"url", "email", "[sUserName]", "sPassWord"};
  static const std::array<const char*, 6> kCompare{"=", "<>", "<", ">=", "<=", ">"};
  static const std::array<const char*, 3> kCounts{"tInterval", "success", "failure"};
  switch (dice_.below(numbers ? 14 : 12)) {
    case 0:
    case 1:
      return dice_.oneOf(kFlags) + (dice_.oneIn(2) ? " = true"s : "=False"s);
    case 2:
      return dice_.oneOf(kCounts) + " "s + dice_.oneOf(kCompare) + " " + number(0, 5);
    case 3:
      return dice_.oneOf(kTexts) + " "s + dice_.oneOf(kCompare) + " " + text();
    case 4:
      return dice_.oneOf(kTexts) + " like "s + (dice_.oneIn(2) ? "'%a%'" : text());
    case 5:
      return dice_.oneOf(kTexts) + (dice_.oneIn(2) ? " is null"s : " is not null"s);
    case 6:
      return dice_.oneOf(kTexts) + " in ("s + text() + ", " + text() + ")";
    case 7:
      return "datediff('n',[lastChecked],now()) "s + dice_.oneOf(kCompare) + " tInterval"s;
    case 8:
      return "DateDiff('S', lastChecked, now ( )) > " + number(-10, 4000);
    case 9:
      return "datevalue(lastChecked) = datevalue(now())";
    case 10:
      return "content_compare = " + (dice_.oneIn(2) ? "content_runtime"s : quoted(bytes()));
    case 11:
      return "length(content_runtime) "s + dice_.oneOf(kCompare) + " "s + number(0, 9);
    case 12:
      return "idSite "s + dice_.oneOf(kCompare) + " " + number(0, 14);
    default:
      return "idSite in (" + number(1, 9) + "," + number(1, 9) + ")";
  }
}

std::string RandomSql::condition(int depth, bool numbers) {
  if (depth == 0 || dice_.oneIn(3)) {
    return leaf(numbers);
  }
  if (dice_.oneIn(3)) {
    return "not (" + condition(depth - 1, numbers) + ")";
  }
  const std::string join = dice_.oneIn(2) ? ") and (" : ") OR (";
  std::string left = condition(depth - 1, numbers);
  return "(" + std::move(left) + join + condition(depth - 1, numbers) + ")";
}

std::string RandomSql::select() {
  static const std::array<const char*, 7> kWhat{"*",
                                                "idSite",
                                                "url, active, [tInterval]",
                                                "content_compare,content_runtime",
                                                "content_runtime, url",
                                                "status, count(*) as [Total Errors]",
                                                "idSite, (tinterval*60)-datediff('s',[lastChecked],now())"};
  const std::string what = dice_.oneOf(kWhat);
  std::string sql = "select " + what + " from sites where " + condition(2, true);
  if (what.starts_with("status")) {
    return sql + " group by status order by status";
  }
  return sql + (dice_.oneIn(2) ? " order by idSite"
                               : " ORDER BY (tinterval*60)-datediff('s',[lastChecked],now()), url desc, idSite");
}

std::string RandomSql::change() {
  static const std::array<const char*, 5> kPages{"content_compare", "content_runtime", "Content_Compare",
                                                 "[content_runtime]", "content_runtime"};
  switch (dice_.below(8)) {
    case 0:
      return "update sites set tInterval = " + number(0, 9) + " where " + condition(2, true);
    case 1:
      return "update sites set status = true, url = " + text() + ", success=success+1 where " + condition(2, true);
    case 2:
      return "update sites set lastChecked = now(), active = False where " + condition(1, true);
    case 3:
      return "update sites set "s + dice_.oneOf(kPages) + " = " + page() + " where idSite = " + number(1, 12);
    case 4:
      return "update sites set "s + dice_.oneOf(kPages) + " = " + page() + ", email = " + text() + " where " +
             condition(1, true);
    case 5:
      return "update sites set content_compare = content_runtime where " + condition(1, true);
    case 6:
      return "delete from sites where " + condition(2, true);
    default:
      return "insert into sites (idSite,"s + kColumns + ") values (" + std::to_string(++inserted_) + "," +
             siteValues() + ")";
  }
}

std::string RandomSql::spelledOtherwise(const std::string& sql) {
  static const std::array<const char*, 7> kBlanks{" ", "\t", "\r\n", "\f ", " -- it's [no name\n", "/* 'no text */",
                                                  "  "};
  const auto blank = [this] { return dice_.oneIn(2) ? " "s : std::string(dice_.oneOf(kBlanks)); };
  std::string spelled = dice_.oneIn(3) ? blank() : "";
  for (std::size_t i = 0; i < sql.size(); ++i) {
    const char c = sql[i];
    if (c == '\'' || c == '[' || c == '`') {
      const std::size_t end = sql.find(c == '[' ? ']' : c, i + 1) + 1;
      spelled += sql.substr(i, end - i);
      i = end - 1;
    } else if (c == ' ') {
      spelled += blank();
    } else if (c == ',' || c == '(' || c == ')' || c == '*') {
      spelled += (dice_.oneIn(4) ? blank() : "") + c + (dice_.oneIn(4) ? blank() : "");
    } else {
      const auto letter = static_cast<unsigned char>(c);
      spelled += static_cast<char>(dice_.oneIn(2) ? std::toupper(letter) : std::tolower(letter));
    }
  }
  return spelled + (dice_.oneIn(4) ? " ; " : dice_.oneIn(4) ? " -- the end" : "");
}

}  // namespace tarnwick::testing
