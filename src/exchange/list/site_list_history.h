// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/list/site_list.h"
#include "store/kept_history.h"

namespace tarnwick {

/// The history of a site as a file has it, a line for each thing that is known. Moments are seconds since the beginning
/// of 1970, UTC:
///
///     latest AT up|down [UNTIL]
///     hour BEGAN CHECKS UP UNKNOWN MSSUM MSMAX [BUCKETS]
///     day|month BEGAN SECONDS CHECKS UP UNKNOWN MSSUM MSMAX [BUCKETS]
///     outage BEGAN ENDED|- CHECKS [CAUSE]
///
/// UP and UNKNOWN are seconds, MSSUM and MSMAX milliseconds, BUCKETS a packed `Latency` in base64; the CAUSE, with
/// blanks in it, is the rest of its line.
std::vector<std::string> linesOf(const KeptHistory& history);

/// Takes such a line into `history`; adds what is wrong with it, with the remedy, to `values`.
void readHistoryLine(KeptHistory& history, std::string_view line, ListValues& values);

}  // namespace tarnwick
