// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// Splits a command line into the program and its arguments, by one rule on every system:
///
/// - blanks (spaces, tabs, line ends) separate arguments, however many there are;
/// - what stands between double quotes keeps its blanks; `""` is an empty argument, and two double quotes inside a
///   quoted part are one that belongs to it. A quote that is never closed reaches to the end of the line;
/// - every other character, the single quote, the backslash, `$`, `%`, `;` and the like included, stands for itself:
///   no shell reads the line.
///
/// A text passed through `literalArgumentText` neither opens nor closes a quoted part.
std::vector<std::string> splitCommandLine(std::string_view line);

/// `value` in the form in which it can be put into a command line without its double quotes counting as such there;
/// `splitCommandLine` gives them back. NUL bytes, which no program can be given, are left out.
std::string literalArgumentText(std::string_view value);

}  // namespace tarnwick
