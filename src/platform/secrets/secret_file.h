// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace tarnwick {

/// What the file of the secrets says. It is read and written as a whole; a line that is not understood stays in it.
class SecretFile {
 public:
  /// Nothing when there is no such file. Raises FileError.
  SecretFile(FileSystem& files, const std::string& path);

  struct Entry {
    /// The secret itself, or by what the key ring has it.
    std::string value;
    bool inKeyRing = false;
  };
  /// Nothing when there is none of that name. Raises DecodeError when its line is damaged.
  std::optional<Entry> find(const std::string& name) const;

  /// Puts the entry in the place of one that has the name; nothing takes that out. Raises FileError.
  void set(const std::string& name, const std::optional<Entry>& entry);

 private:
  FileSystem& files_;
  std::string path_;
  std::vector<std::string> lines_;
};

}  // namespace tarnwick
