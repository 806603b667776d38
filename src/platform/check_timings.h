// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>

namespace tarnwick {

/// How long the parts of a request took, each from its beginning on, and those of its redirects added to them. Nothing
/// where there was no such part, or where it came to no end; none of them is counted that a connection had that is used
/// once more.
struct CheckTimings {
  std::optional<std::chrono::milliseconds> lookUp{};
  std::optional<std::chrono::milliseconds> connect{};
  std::optional<std::chrono::milliseconds> tls{};        ///< the handshake
  std::optional<std::chrono::milliseconds> firstByte{};  ///< from the request on
  std::optional<std::chrono::milliseconds> whole{};

  bool operator==(const CheckTimings&) const = default;
};

}  // namespace tarnwick
