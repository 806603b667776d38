// SPDX-License-Identifier: MIT
#include "store/history_rows.h"

#include <algorithm>

namespace tarnwick::history_rows {

using namespace std::chrono;

namespace {

SqlValue number(std::int64_t value) { return SqlValue(value); }

std::int64_t unknownOf(const TimeSum& sum, seconds length) {
  return std::max(seconds(0), length - sum.known()).count();
}

}  // namespace

SqlValue of(Moment moment) { return SqlValue(std::int64_t{moment.time_since_epoch().count()}); }

Moment momentIn(const SqlValue& value) { return Moment(seconds(value.toInt64())); }

TimeSum sumIn(const Recordset& rows, std::size_t first, seconds length) {
  TimeSum sum;
  const SqlValue checks = rows.field(first);
  if (checks.isNull()) {
    return sum;
  }
  const auto from = [&](std::size_t column) { return std::max<std::int64_t>(0, rows.field(first + column).toInt64()); };
  sum.checks = checks.toInt64();
  sum.up = std::min(seconds(from(1)), length);
  sum.down = length - sum.up - std::min(seconds(from(2)), length - sum.up);
  sum.tookInAll = milliseconds(from(3));
  sum.slowest = milliseconds(from(4));
  sum.latency = Latency::unpacked(rows.field(first + 5).toText());
  return sum;
}

KeptSum sumFrom(const Recordset& rows, std::size_t first) {
  return {momentIn(rows.field(first)), sumIn(rows, first + 2, seconds(rows.field(first + 1).toInt64()))};
}

std::vector<KeptSum> sumsIn(Recordset& rows) {
  std::vector<KeptSum> sums;
  for (; !rows.eof(); rows.moveNext()) {
    sums.push_back(sumFrom(rows, 0));
  }
  rows.close();
  return sums;
}

std::array<SqlValue, 8> hourRow(std::int64_t idSite, Moment hour, const TimeSum& sum) {
  return {number(idSite),
          of(hour),
          number(sum.checks),
          number(sum.up.count()),
          number(unknownOf(sum, hours{1})),
          number(sum.tookInAll.count()),
          number(sum.slowest.count()),
          SqlValue(sum.latency.packed())};
}

std::array<SqlValue, 9> rowOfLength(std::int64_t idSite, Stretch time, const TimeSum& sum) {
  const seconds length = time.until - time.from;
  return {number(idSite),
          of(time.from),
          number(length.count()),
          number(sum.checks),
          number(sum.up.count()),
          number(unknownOf(sum, length)),
          number(sum.tookInAll.count()),
          number(sum.slowest.count()),
          SqlValue(sum.latency.packed())};
}

}  // namespace tarnwick::history_rows
