// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "store/site_standing.h"

namespace tarnwick::testing {

/// "down", "up slow", or "" for none.
inline std::string wordsOf(const std::vector<AlertKind>& alerts) {
  std::string words;
  for (const AlertKind kind : alerts) {
    words += words.empty() ? "" : " ";
    switch (kind) {
      case AlertKind::down:
        words += "down";
        break;
      case AlertKind::stillDown:
        words += "stillDown";
        break;
      case AlertKind::up:
        words += "up";
        break;
      case AlertKind::unsteady:
        words += "unsteady";
        break;
      case AlertKind::slow:
        words += "slow";
        break;
      case AlertKind::certificate:
        words += "certificate";
        break;
      case AlertKind::issuer:
        words += "issuer";
        break;
    }
  }
  return words;
}

}  // namespace tarnwick::testing
