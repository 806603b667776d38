// SPDX-License-Identifier: MIT
#include "platform/digest.h"

#include "platform/os/system_digest.h"

namespace tarnwick {

std::string sha256(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (const unsigned char byte : systemSha256(bytes)) {
    text += kDigits[byte / kDigits.size()];
    text += kDigits[byte % kDigits.size()];
  }
  return text;
}

}  // namespace tarnwick
