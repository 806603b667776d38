// SPDX-License-Identifier: MIT
#include "platform/os/system_digest.h"

#include <openssl/evp.h>

namespace tarnwick {

std::optional<std::array<unsigned char, 32>> systemSha256(std::string_view bytes) {
  std::array<unsigned char, 32> digest{};
  const int made = EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_sha256(), nullptr);
  return made == 1 ? std::optional(digest) : std::nullopt;
}

}  // namespace tarnwick
