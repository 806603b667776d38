// SPDX-License-Identifier: MIT
#include "platform/web/request_parts.h"

#include <algorithm>

namespace tarnwick {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

microseconds spanOf(CURL* easy, CURLINFO what) {
  curl_off_t span = 0;
  curl_easy_getinfo(easy, what, &span);
  return microseconds(span);
}

std::optional<milliseconds> rounded(std::optional<microseconds> span) {
  return span ? std::optional(std::chrono::round<milliseconds>(*span)) : std::nullopt;
}

/// A part that has ended behind the one before it. A clock may have been too coarse to tell the two apart.
void add(std::optional<microseconds>& part, microseconds end, microseconds begin) {
  if (end > microseconds(0)) {
    part = part.value_or(microseconds(0)) + std::max(end - begin, microseconds(0));
  }
}

}  // namespace

void RequestParts::note(CURL* easy) {
  const Sums now{spanOf(easy, CURLINFO_NAMELOOKUP_TIME_T), spanOf(easy, CURLINFO_CONNECT_TIME_T),
                 spanOf(easy, CURLINFO_APPCONNECT_TIME_T)};
  const microseconds lookUp = now.lookUp - noted_.lookUp;
  const microseconds connect = now.connect - noted_.connect;
  add(lookUp_, lookUp, microseconds(0));
  add(connect_, connect, lookUp);
  add(tls_, now.tls - noted_.tls, connect);
  noted_ = now;
}

CheckTimings RequestParts::timings(CURL* easy) const {
  CheckTimings timings{rounded(lookUp_), rounded(connect_), rounded(tls_), {}, {}};
  const microseconds sent = spanOf(easy, CURLINFO_PRETRANSFER_TIME_T);
  const microseconds answered = spanOf(easy, CURLINFO_STARTTRANSFER_TIME_T);
  if (answered > microseconds(0)) {
    timings.firstByte = rounded(std::max(answered - sent, microseconds(0)));
  }
  return timings;
}

}  // namespace tarnwick
