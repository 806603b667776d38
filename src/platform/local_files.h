// SPDX-License-Identifier: MIT
#pragma once

#include "platform/file_system.h"

namespace tarnwick {

/// The files of this machine. It holds nothing, so one can be made wherever it is used.
class LocalFiles : public FileSystem {
 public:
  FileKind kindOf(const std::string& path) override;
  bool exists(const std::string& path) override;
  std::string resolveLinks(const std::string& path) override;
  std::uint64_t sizeOf(const std::string& path) override;
  bool isSameFile(const std::string& one, const std::string& other) override;
  std::unique_ptr<OpenedFile> open(const std::string& path) override;
  std::unique_ptr<FileInTheMaking> make(const std::string& path, const std::string& like) override;
  void write(const std::string& path, const std::string& like, const FileFill& fill) override;
  void overwrite(const std::string& path, FileRest rest, const FileFill& fill) override;
  void rename(const std::string& from, const std::string& to) override;
  void remove(const std::string& path) override;
  bool replacesOpenFiles() override;
  std::optional<DiskRoom> roomAt(const std::string& path) override;
  bool makeFolder(const std::string& path) override;
  bool holdsVisibleFile(const std::string& folder) override;
};

}  // namespace tarnwick
