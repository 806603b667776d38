// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/wording.h"
#include "cli/verbs/verb.h"

namespace tarnwick {

/// What the arguments of the tool come to.
struct CommandLine {
  /// What is to be done; empty when there is nothing but texts.
  Action action{};
  /// What `--folder` names.
  std::optional<std::string> folder{};
  /// A help text or the version, when one has been asked for.
  std::string text{};
  /// Why the arguments cannot be understood, and where to read on.
  std::vector<std::string> complaints{};
};

/// Understands the arguments (without the program's name) and writes the values of the options where they belong.
CommandLine understand(const std::vector<std::string>& arguments, const std::vector<Verb>& verbs,
                       const Wording& wording = {});

}  // namespace tarnwick
