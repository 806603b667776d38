// SPDX-License-Identifier: MIT
#include "support/child_process.h"

namespace tarnwick::testing {

bool ChildProcess::waitForLine() {
  char byte = 0;
  while (read(byte)) {
    if (byte == '\n') {
      return true;
    }
  }
  return false;
}

}  // namespace tarnwick::testing
