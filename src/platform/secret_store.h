// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tarnwick {

/// The passwords and tokens of a program folder, each by its name: in the key ring of the user's desktop where there is
/// one, else in a file of the folder that only the user can read. A key ring may ask its user first, so all answers
/// come through the event loop, never from inside a call, in the order of the calls; none comes when this object has
/// gone.
class SecretStore {
 public:
  virtual ~SecretStore() = default;

  struct Answer {
    /// Nothing when there is none of that name, or it cannot be had.
    std::optional<std::string> secret{};
    /// Why it cannot be had, in a sentence with the remedy; empty when there is one, or when none of that name is kept.
    std::string why{};
  };

  /// The secret of that name, which is any text.
  virtual void read(const std::string& name, std::function<void(Answer)> done) = 0;
  /// Keeps the secret, any bytes, in place of one that has the name. `why` is empty when it is kept.
  virtual void store(const std::string& name, const std::string& secret, std::function<void(std::string why)> done) = 0;
  /// Forgets the secret; nothing when there is none.
  virtual void remove(const std::string& name, std::function<void()> done) = 0;

  /// Whether `store` puts secrets into a key ring, else into the file.
  virtual bool inKeyRing() const = 0;
};

class SecretStoreMaker {
 public:
  virtual ~SecretStoreMaker() = default;
  /// The secrets of the program folder. Several of one folder know of each other's changes.
  virtual std::unique_ptr<SecretStore> makeSecretStore(const std::string& programFolder) = 0;
};

}  // namespace tarnwick
