// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace tarnwick {

/// The editor of sites, as those know it who open it.
struct SiteEditing {
  /// Opens it on a site.
  std::function<void(std::int16_t idSite)> open;
  /// The same on what is told of it.
  std::function<void(std::int16_t idSite)> openAlarm{};
  /// Opens it on a site that `add` makes, if and when it is free for that.
  std::function<void(const std::function<std::int16_t()>& add)> openNew;
  /// Opens the site's content, with what of its latest page's difference may be no change as proposals.
  std::function<void(std::int16_t idSite)> propose{};
};

}  // namespace tarnwick
