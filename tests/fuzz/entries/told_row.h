// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "fuzz/entries/fuzz_target.h"
#include "store/outbox.h"

namespace tarnwick::testing {

/// Alerts whose texts are pieces of the input: one, or two.
inline std::vector<OutboxRow> toldRows(std::string_view& input) {
  OutboxRow row;
  row.id = 7;
  const std::size_t choice = takeByte(input);
  row.alert.idSite = 3;
  row.alert.event = choice % 2 == 0 ? "down" : "still down";
  for (std::string* const text : {&row.alert.url, &row.alert.cause, &row.alert.downSince, &row.alert.downFor,
                                  &row.alert.checks, &row.alert.firstError, &row.alert.difference}) {
    *text = takePiece(input);
  }
  return choice % 3 == 0 ? std::vector<OutboxRow>{row, row} : std::vector<OutboxRow>{row};
}

/// Whether no reader of headers sees more than one line in it.
inline bool isOneLine(std::string_view text) { return text.find_first_of(std::string_view("\r\n\0", 3)) == text.npos; }

}  // namespace tarnwick::testing
