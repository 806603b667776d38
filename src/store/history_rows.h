// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "store/site_history.h"

// How what is known of a stretch of time stands in the rows of the tables.
namespace tarnwick::history_rows {

inline constexpr const char* kStoreHour =
    "insert or replace into hours (idSite, hour, checks, up, unknown, msSum, msMax, buckets) values (?1, ?2, ?3, ?4, "
    "?5, ?6, ?7, ?8)";
// A sum that knows more of its time stays: of a day whose hours are kept no longer a clock that is set back brings few.
inline constexpr const char* kStoreDay =
    "insert into days (idSite, day, seconds, checks, up, unknown, msSum, msMax, buckets) values (?1, ?2, ?3, ?4, ?5, "
    "?6, ?7, ?8, ?9) on conflict (idSite, day) do update set seconds = ?3, checks = ?4, up = ?5, unknown = ?6, "
    "msSum = ?7, msMax = ?8, buckets = ?9 where ?3 - ?6 >= seconds - unknown";
inline constexpr const char* kStoreMonth =
    "insert into months (idSite, month, seconds, checks, up, unknown, msSum, msMax, buckets) values (?1, ?2, ?3, ?4, "
    "?5, ?6, ?7, ?8, ?9) on conflict (idSite, month) do update set seconds = ?3, checks = ?4, up = ?5, unknown = ?6, "
    "msSum = ?7, msMax = ?8, buckets = ?9 where ?3 - ?6 >= seconds - unknown";

SqlValue of(Moment moment);
Moment momentIn(const SqlValue& value);

/// The fields `checks, up, unknown, msSum, msMax, buckets` from the number `first` on, of a row that stands for so much
/// time.
TimeSum sumIn(const Recordset& rows, std::size_t first, std::chrono::seconds length);
/// The fields from the number `first` on: the beginning, the length in seconds and those.
KeptSum sumFrom(const Recordset& rows, std::size_t first);
/// The rows left, which hold nothing else.
std::vector<KeptSum> sumsIn(Recordset& rows);

/// The values of a row of `hours`; of `days` and `months`, whose time is `time`.
std::array<SqlValue, 8> hourRow(std::int64_t idSite, Moment hour, const TimeSum& sum);
std::array<SqlValue, 9> rowOfLength(std::int64_t idSite, Stretch time, const TimeSum& sum);

}  // namespace tarnwick::history_rows
