// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>

#include "platform/prompts.h"

namespace tarnwick {

/// Where an error of an event handler ends: in one box with its cause, after which the program lives on.
class FaultBox {
 public:
  /// `prompts` outlives this.
  explicit FaultBox(Prompts& prompts) : prompts_(prompts) {}

  /// Runs what the user asked for; a failure is shown every time. False when it failed.
  /// `source` names a repeated action (see `runRepeated`) that goes on with this one's work, and would fail alike.
  bool run(const std::function<void()>& action, const std::string& source = {});

  /// Runs what a timer asked for. A failure that has been shown is not shown again until the source that met it has
  /// succeeded once, so that a lasting fault is told once, not at every tick nor by every timer that meets it; and none
  /// is shown while another's box is still open: if it lasts, it is shown after that. False when it failed.
  bool runRepeated(const std::string& source, const std::function<void()>& action);

  /// Shows `message` in a box.
  void show(const std::string& message);

 private:
  bool isStanding(const std::string& fault) const;

  struct Fault {
    std::string source;
    std::string fault;
    auto operator<=>(const Fault&) const = default;
  };

  Prompts& prompts_;
  // What has been shown of the repeated actions and not been followed by a success.
  std::set<Fault> standing_;
  // How many boxes are open; they may outlast this.
  std::shared_ptr<int> open_ = std::make_shared<int>(0);
};

}  // namespace tarnwick
