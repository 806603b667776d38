// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "cli/terminal/console.h"
#include "cli/verbs/verb.h"
#include "platform/services.h"
#include "program/m.h"
#include "store/fields.h"

namespace tarnwick {

/// What the tool ends with.
namespace exit_status {
inline constexpr int ok = 0;
/// Something is not as it should be: a site is down, a page differs.
inline constexpr int down = 1;
/// The tool could not do what it was asked for.
inline constexpr int failed = 2;
/// No site is down, but one was changed while it was checked, and its page was dropped.
inline constexpr int dropped = 3;
/// No site is down and no page was dropped, but a site is up only because the text of a fetch that fails is its
/// baseline.
inline constexpr int notAPage = 4;
}  // namespace exit_status

/// What every verb has at hand.
class Tool {
 public:
  Tool(std::string programFolder, const Services& services, Console& console, const Fields& fields = programFields())
      : folder_(std::move(programFolder)), services_(services), console_(console), fields_(fields) {}

  /// The data of the program folder, opened on first use; raises DataAccessError when that fails.
  m& data() {
    if (!data_) {
      data_.emplace(folder_, services_, fields_);
    }
    return *data_;
  }
  const std::string& programFolder() const { return folder_; }
  /// The folder of the executable, in which the files of the program lie. Empty where the tool was made without one.
  const std::string& installation() const { return installation_; }
  void setInstallation(std::string folder) { installation_ = std::move(folder); }
  const Services& services() const { return services_; }
  Console& console() { return console_; }
  /// What can be set.
  const Fields& fields() const { return fields_; }

 private:
  std::string folder_;
  std::string installation_;
  Services services_;
  Console& console_;
  const Fields& fields_;
  std::optional<m> data_;
};

/// What is raised for an id that is not in the list.
std::runtime_error noSuchSite(std::int64_t idSite);
/// Raises it when there is no such site.
void requireListed(Tool& tool, std::int16_t idSite);

/// Runs the tool with its arguments (without the program's name). Where no folder is named it is the one for
/// an executable in `programFolder` (see `programFolderFor`).
/// Returns the exit status; nothing is raised.
int runTool(const std::vector<std::string>& arguments, const std::string& programFolder, const Services& services,
            Console& console, const Fields& fields = programFields());

}  // namespace tarnwick
