// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace tarnwick {

/// The desktop's own place for passwords. It may ask its user before it answers; each answer comes once, through the
/// event loop, also when whoever asked has gone.
class KeyRing {
 public:
  virtual ~KeyRing() = default;

  /// Whether the desktop has one just now.
  virtual bool isThere() = 0;

  /// What there is under the key, or why that cannot be had.
  virtual void read(const std::string& key,
                    std::function<void(std::optional<std::string> secret, std::string why)> done) = 0;

  enum class Kept {
    yes,
    /// The key ring is none, or does not work.
    unable,
    /// Its user does not want it.
    refused
  };
  virtual void write(const std::string& key, const std::string& secret,
                     std::function<void(Kept kept, std::string why)> done) = 0;
  virtual void remove(const std::string& key) = 0;
};

}  // namespace tarnwick
