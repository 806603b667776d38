// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>

#include "cli/verbs/completion.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"

namespace tarnwick {
namespace {

using Written = std::string (*)(const std::vector<Verb>& verbs);
struct Shell {
  const char* name;
  Written completion;
};
constexpr Shell kShells[] = {{"bash", bashCompletion}, {"zsh", zshCompletion}, {"fish", fishCompletion}};

}  // namespace

Verb completionVerb() {
  auto shell = std::make_shared<std::string>();
  std::vector<std::string> names;
  std::ranges::transform(kShells, std::back_inserter(names), &Shell::name);
  return Verb{
      "completion",
      "Print what lets a shell complete the tool's verbs and options",
      {{.name = "SHELL", .target = shell.get(), .meaning = "bash, zsh or fish", .required = true, .oneOf = names}},
      "The packages bring it along. From an archive, for your own shell:\n" +
          examples({{"completion bash >~/.local/share/bash-completion/completions/tarnwickctl", "for bash"},
                    {"completion fish >~/.config/fish/completions/tarnwickctl.fish", "for fish"}}),
      [shell](Tool& tool) {
        const auto* const chosen = std::ranges::find(kShells, *shell, &Shell::name);
        tool.console().say(chosen->completion(allVerbs(tool.fields())));
        return exit_status::ok;
      }};
}

}  // namespace tarnwick
