// SPDX-License-Identifier: MIT
#include "cli/verbs/tool.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <ostream>

#include "base/errors.h"
#include "cli/terminal/tool_prompts.h"
#include "cli/verbs/command_line.h"
#include "cli/verbs/verbs.h"
#include "platform/program_folder.h"

namespace tarnwick {
namespace {

// As messages name it: they may be read elsewhere than where the tool was started.
std::string absoluteFolder(const std::string& folder) {
  if (folder.empty()) {
    throw std::runtime_error("--folder names no folder. Give the one in which tarnwick.mdb lies.");
  }
  std::filesystem::path path = std::filesystem::absolute(pathOf(folder));
  // Behind a link "x/.." may be another folder than this one, so only what is surely the same is taken away.
  if (std::ranges::find(path, "..") == path.end()) {
    path = path.lexically_normal();
  }
  std::string text = textOf(path);
  while (text.size() > 1 && text.ends_with('/')) {
    text.pop_back();
  }
  return text;
}

// What was written is part of the work. A reader that has gone has seen as much as it wanted.
int statusWithOutput(Console& console, int status) {
  const std::error_code fault = console.flush();
  if (!fault || fault == std::errc::broken_pipe) {
    return status;
  }
  console.complain("Standard output took not all of it: " + fault.message() + ".");
  return exit_status::failed;
}

// A folder that is named wrongly looks like one whose database is gone.
std::string adviceOn(FileSystem& files, const std::string& folder) {
  return !folder.empty() && files.kindOf(folder + "/tarnwick.mdb") == FileKind::none
             ? " Or name the right folder with --folder."
             : "";
}

}  // namespace

std::runtime_error noSuchSite(std::int64_t idSite) {
  return std::runtime_error("There is no site " + std::to_string(idSite) +
                            ". The ids are listed by: tarnwickctl sites");
}

void requireListed(Tool& tool, std::int16_t idSite) {
  if (!tool.data().idExists(idSite)) {
    throw noSuchSite(idSite);
  }
}

int runTool(const std::vector<std::string>& arguments, const std::string& programFolder, const Services& services,
            Console& console, const Fields& fields) {
  std::string folder;
  try {
    const std::vector<Verb> verbs = allVerbs(fields);
    const CommandLine line = understand(arguments, verbs, console.wording());
    if (!line.complaints.empty()) {
      std::ranges::for_each(line.complaints, [&console](const std::string& text) { console.complain(text); });
      return exit_status::failed;
    }
    if (!line.action) {
      console.say(line.text);
      return statusWithOutput(console, exit_status::ok);
    }
    folder = absoluteFolder(line.folder ? *line.folder : programFolderFor(programFolder));
    ToolPrompts prompts(console);
    Tool tool(folder, services.with({.prompts = &prompts}), console, fields);
    tool.setInstallation(programFolder);
    return statusWithOutput(console, line.action(tool));
  } catch (const DataAccessError& error) {
    console.complain(error.what() + adviceOn(services.files, folder));
    if (error.kind() == DataAccessError::Kind::damaged) {
      console.complain("A copy is put in its place by: tarnwickctl restore backup.mdb");
    }
    return exit_status::failed;
  } catch (const std::bad_alloc&) {
    console.complain(kNotEnoughMemory);
    return exit_status::failed;
  } catch (const std::exception& error) {
    console.complain(error.what());
    return exit_status::failed;
  }
}

}  // namespace tarnwick
