#pragma once

#include "platform/file_system.h"

namespace tarnwick {

/// The files of this machine.
class LocalFiles final : public FileSystem {
 public:
  void write(const std::string& path, const std::string& like,
             const std::function<void(const ByteSink& sink)>& fill) override;
  void copy(const std::string& from, const std::string& to) override;
  void rename(const std::string& from, const std::string& to) override;
  void remove(const std::string& path) override;
  bool replacesOpenFiles() const override;
};

}  // namespace tarnwick
