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
inline constexpr const char* kStoreDay =
    "insert or replace into days (idSite, day, seconds, checks, up, unknown, msSum, msMax, buckets) values (?1, ?2, "
    "?3, ?4, ?5, ?6, ?7, ?8, ?9)";
inline constexpr const char* kStoreMonth =
    "insert or replace into months (idSite, month, seconds, checks, up, unknown, msSum, msMax, buckets) values (?1, "
    "?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)";

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
