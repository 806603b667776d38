// SPDX-License-Identifier: MIT
#include "platform/os/system_digest.h"

#include <openssl/evp.h>

#include <stdexcept>

namespace tarnwick {

std::array<unsigned char, 32> systemSha256(std::string_view bytes) {
  std::array<unsigned char, 32> digest{};
  if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_sha256(), nullptr) != 1) {
    throw std::runtime_error("OpenSSL makes no SHA-256 digest.");
  }
  return digest;
}

}  // namespace tarnwick
