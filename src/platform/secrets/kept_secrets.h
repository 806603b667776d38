// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/file_system.h"
#include "platform/secret_store.h"

namespace tarnwick {

class KeyRing;

/// Secrets in the file "secrets" of the program folder, which nobody but its owner can read at any moment. One that is
/// in the desktop's key ring has a line there that says so, by which each program of the folder knows of it.
class KeptSecrets final : public SecretStoreMaker {
 public:
  /// Both outlive the stores that are made. Without a key ring one that is in it cannot be read.
  explicit KeptSecrets(FileSystem& files, KeyRing* ring = nullptr) : files_(files), ring_(ring) {}

  std::unique_ptr<SecretStore> makeSecretStore(const std::string& programFolder) override;

 private:
  FileSystem& files_;
  KeyRing* ring_;
};

}  // namespace tarnwick
