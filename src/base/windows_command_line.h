// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

/// How arguments are put together on Windows, where a program is given one line and takes it apart by itself. Texts
/// only, so that every system can test them.
namespace tarnwick {

/// The path of a file as Windows takes it: dots and blanks at its end do not count, so that "a.bat. ." is "a.bat".
std::string windowsFileName(std::string path);

/// The line that a program takes apart into exactly these arguments, by the rules of the C library and of
/// CommandLineToArgvW.
std::string windowsCommandLine(const std::vector<std::string>& arguments);

/// What cmd.exe is called with to run a batch file with these arguments, behind its own name: nothing in them is taken
/// for a variable or a command. `arguments[0]` is the batch file. Nothing when that cannot be had: a line end would
/// begin another command.
std::optional<std::string> batchCommandLine(const std::vector<std::string>& arguments);

/// What the script host is called with to run a script with these arguments, behind its own name. It knows no way to
/// give a script a double quote; a single one stands for it.
std::string scriptCommandLine(const std::vector<std::string>& arguments);

}  // namespace tarnwick
