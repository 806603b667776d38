// SPDX-License-Identifier: MIT
#include "base/windows_command_line.h"

#include <algorithm>
#include <string_view>

namespace tarnwick {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\v";

std::string quoted(std::string_view argument) {
  std::string text = "\"";
  std::size_t backslashes = 0;
  for (const char c : argument) {
    if (c == '\\') {
      ++backslashes;
    } else {
      // Backslashes mean themselves but before a quote.
      text.append(c == '"' ? 2 * backslashes + 1 : backslashes, '\\');
      backslashes = 0;
      text += c;
    }
  }
  return text.append(2 * backslashes, '\\') + '"';
}

std::string joined(const std::vector<std::string>& arguments, std::string (*one)(std::string_view argument)) {
  std::string line;
  for (const std::string& argument : arguments) {
    line.append(line.empty() ? "" : " ").append(one(argument));
  }
  return line;
}

std::string forProgram(std::string_view argument) {
  const bool plain = !argument.empty() && argument.find_first_of(kBlanks) == std::string_view::npos &&
                     argument.find('"') == std::string_view::npos;
  return plain ? std::string(argument) : quoted(argument);
}

// Between quotes nothing has a meaning for cmd.exe but the quote itself and the percent sign. The quote is doubled,
// which closes and opens; and before every percent sign stands the name of a variable that is always empty, so that no
// pair of them can enclose a name.
std::string forBatchFile(std::string_view argument) {
  std::string text = "\"";
  for (const char c : argument) {
    if (c == '"') {
      text += "\"\"";
    } else if (c == '%') {
      text += "%%cd:~,%";
    } else {
      text += c;
    }
  }
  const bool endsInBackslash = argument.ends_with('\\');
  return text + (endsInBackslash ? "\\\"" : "\"");
}

std::string forScript(std::string_view argument) {
  std::string text(argument);
  std::replace(text.begin(), text.end(), '"', '\'');
  return '"' + text + '"';
}

}  // namespace

std::string windowsFileName(std::string path) {
  path.erase(path.find_last_not_of(". ") + 1);
  return path;
}

std::string windowsCommandLine(const std::vector<std::string>& arguments) { return joined(arguments, &forProgram); }

std::optional<std::string> batchCommandLine(const std::vector<std::string>& arguments) {
  const bool lineEnds = std::any_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
    return argument.find_first_of("\r\n") != std::string::npos;
  });
  if (lineEnds) {
    return std::nullopt;
  }
  // No start-up commands of the user; the variables' extended forms, and no exclamation marks as variables; /s takes
  // away the outermost quotes and nothing else.
  return "/d /e:on /v:off /s /c \"" + joined(arguments, &forBatchFile) + "\"";
}

std::string scriptCommandLine(const std::vector<std::string>& arguments) { return joined(arguments, &forScript); }

}  // namespace tarnwick
