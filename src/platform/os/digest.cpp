// SPDX-License-Identifier: MIT
#include "platform/digest.h"

#include <stdexcept>

#include "platform/os/system_digest.h"

namespace tarnwick {

std::string sha256(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const auto digest = systemSha256(bytes);
  if (!digest) {
    throw std::runtime_error("The system makes no SHA-256 digest.");
  }
  std::string text;
  for (const unsigned char byte : *digest) {
    text += kDigits[byte / kDigits.size()];
    text += kDigits[byte % kDigits.size()];
  }
  return text;
}

}  // namespace tarnwick
