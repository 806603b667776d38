// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop.h"

namespace tarnwick {

/// Opens files and addresses with the desktop's default programs. A file must exist; an address without a scheme is
/// taken for a web address.
class QtDesktopOpener final : public DesktopOpener {
 public:
  bool open(const std::string& pathOrAddress) override;
};

}  // namespace tarnwick
