// SPDX-License-Identifier: MIT
#include "cli/terminal/json_output.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "platform/program_folder.h"

namespace tarnwick {
namespace {

struct InitOptions {
  bool json = false;
};

// The folder as messages name it.
std::string refusal(Laid laid, const std::string& folder) {
  if (laid == Laid::nothing) {
    return "There is no fresh list beside the tool to lay into " + visibleText(folder) +
           ". The installation of Tarnwick is not whole: install it again.";
  }
  return "The folder " + visibleText(folder) +
         " has had a list, which is missing. Put tarnwick.mdb back, for instance with: tarnwickctl restore backup.mdb";
}

int init(Tool& tool, const InitOptions& options) {
  const std::string& folder = tool.programFolder();
  const Laid laid = layOnce(tool.installation(), folder);
  const bool hasList = tool.services().files.exists(folder + "/tarnwick.mdb");
  if (!hasList) {
    tool.console().complain(refusal(laid, folder));
    return exit_status::failed;
  }
  if (options.json) {
    sayJson(tool.console(), {{"folder", jsonText(folder)}, {"laid", laid == Laid::now}});
  } else {
    tool.console().tell(laid == Laid::now
                            ? "A fresh list lies in " + visibleText(folder) + "."
                            : "There is a list in " + visibleText(folder) + " already. It stays as it is.");
  }
  return exit_status::ok;
}

}  // namespace

Verb initVerb() {
  auto options = std::make_shared<InitOptions>();
  return Verb{
      "init",
      "Lay a fresh list and mail template into a folder that has never had any",
      {jsonOption(options->json)},
      "The folder is made when it is missing. What is there stays as it is, and a list that has gone missing is "
      "an error. Without --folder the first start of the program does it by itself.\n" +
          examples({{"init --folder /srv/watch", "for a list beside your own"},
                    {"init --folder /srv/watch --json", "whether one was laid, for a script"}}),
      [options](Tool& tool) { return init(tool, *options); }};
}

}  // namespace tarnwick
