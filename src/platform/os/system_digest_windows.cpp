// SPDX-License-Identifier: MIT
#include "platform/os/system_digest.h"

// Before the headers that need it.
#include <windows.h>

#include <bcrypt.h>

#include <string>

namespace tarnwick {

std::optional<std::array<unsigned char, 32>> systemSha256(std::string_view bytes) {
  std::array<unsigned char, 32> digest{};
  BCRYPT_ALG_HANDLE provider = nullptr;
  bool isMade = BCryptOpenAlgorithmProvider(&provider, BCRYPT_SHA256_ALGORITHM, nullptr, 0) >= 0;
  if (isMade) {
    // It takes what it only reads as if it could be written to.
    std::string copy(bytes);
    isMade = BCryptHash(provider, nullptr, 0, reinterpret_cast<PUCHAR>(copy.data()), static_cast<ULONG>(copy.size()),
                        digest.data(), static_cast<ULONG>(digest.size())) >= 0;
    BCryptCloseAlgorithmProvider(provider, 0);
  }
  return isMade ? std::optional(digest) : std::nullopt;
}

}  // namespace tarnwick
