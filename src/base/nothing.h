// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Belongs into every std::variant of texts and lists, as the value that is none. When memory runs out while such a
/// variant is copied, the standard library (libstdc++ 12) takes one whose values can all be moved without an error for
/// whole, and destroys what is not there. This value it cannot copy byte by byte, so it looks what there is.
struct Nothing {
  Nothing() = default;
  Nothing(const Nothing&) noexcept {}  // NOLINT(modernize-use-equals-default): not byte by byte
  Nothing& operator=(const Nothing&) = default;
  ~Nothing() = default;
  bool operator==(const Nothing&) const = default;
};

}  // namespace tarnwick
