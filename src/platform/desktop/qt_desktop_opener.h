// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop.h"

namespace tarnwick {

/// Opens files and addresses with the desktop's default programs.
class QtDesktopOpener final : public DesktopOpener {
 public:
  bool openFile(const std::string& path) override;
  bool openAddress(const std::string& url) override;
};

}  // namespace tarnwick
