// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <QString>

#include "difference/page_difference.h"
#include "engine/settling.h"
#include "platform/clock.h"
#include "store/result_log.h"
#include "ui/details/compared_pages.h"

namespace tarnwick {

/// How a site stands, in one sentence: "Site 3 changed: line 6 differs". `reason` is why it is down, and may be empty.
QString standingWords(std::int16_t idSite, const ToSettle& found, const QString& reason);

/// Which lines have changed: "line 6 differs, line 8 is new". Empty of too many changes.
QString changesWords(const ComparedPages& pages, const PageDifference& difference);

/// What is said in the place of a difference where there is none to be shown; empty where there is one.
QString nothingToShow(std::int16_t idSite, const ToSettle& found);

/// Why the page of its latest check is not accepted without a second thought, a line each; empty for most.
QString doubtWords(const ToSettle& found);

/// What stands above the two pages: "+ Latest check 04:24:41, 1,204 bytes".
QString baselineHead(std::size_t bytes);
QString latestHead(std::size_t bytes, std::optional<LocalTime> checked, LocalTime now);
/// The same of a baseline that was kept: "− Baseline until 2026-11-21 04:24:41, 1,187 bytes".
QString keptHead(const KeptBaseline& kept);

/// The same of a page in the log, and what is said in its place where the log holds none; empty where it does.
QString loggedHead(const LogRow& row);
QString loggedWords(const LogRow& row);

/// A number of bytes as people read it: "1,204 bytes".
QString bytesWords(std::size_t bytes);

/// Whether the latest check brought something that can be acknowledged.
bool canBeSettled(const ToSettle& found);
/// Whether it can be accepted, too, which an empty page cannot.
bool canBeAccepted(const ToSettle& found);

}  // namespace tarnwick
