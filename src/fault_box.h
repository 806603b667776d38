#pragma once

#include <functional>
#include <set>
#include <string>

#include "platform/prompts.h"

namespace tarnwick {

/// Where an error of an event handler ends: in one box with its cause, after which the program lives on.
class FaultBox {
 public:
  explicit FaultBox(Prompts& prompts) : prompts_(prompts) {}

  /// Runs what the user asked for; a failure is shown every time. False when it failed.
  /// `source` names a repeated action (see `runRepeated`) that goes on with this one's work, and would fail alike.
  bool run(const std::function<void()>& action, const std::string& source = {});

  /// Runs what a timer asked for. A failure that `source` has already met is not shown again until the source has
  /// succeeded once, so that a lasting fault is told once, not at every tick; and none is shown while another's box is
  /// still open. False when it failed.
  bool runRepeated(const std::string& source, const std::function<void()>& action);

  /// Shows `message` in a box.
  void show(const std::string& message);

 private:
  struct Fault {
    std::string source;
    std::string fault;
    auto operator<=>(const Fault&) const = default;
  };

  Prompts& prompts_;
  std::set<Fault> standing_;
  int open_ = 0;
};

}  // namespace tarnwick
