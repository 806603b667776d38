// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

/// What the desktop shows for a moment beside whatever its user does. All of it is text: what looks like markup is
/// shown as it is.
struct Notice {
  std::string title{};
  /// May have several lines.
  std::string text{};
  /// What can be done about it, as a key and what stands on its button. A desktop may show fewer, or none. The key
  /// "default" is a click on the notice itself.
  std::vector<std::pair<std::string, std::string>> actions{};
};

/// The desktop's own notification service.
class Notifier {
 public:
  virtual ~Notifier() = default;

  /// Shows the notice. `done` is called once, through the event loop: with nothing when the desktop has taken it, else
  /// with a sentence that says why not. `acted` is called with the key of an action each time its user takes one, as
  /// long as the notice is there. Both may be called when whoever asked has gone, and may be empty.
  virtual void show(const Notice& notice, std::function<void(std::string key)> acted,
                    std::function<void(std::string why)> done) = 0;

  /// Whether there is such a service just now, or one that the desktop starts when it is asked.
  virtual bool isThere() = 0;
};

}  // namespace tarnwick
