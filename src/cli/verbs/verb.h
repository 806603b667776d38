// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tarnwick {

class Tool;

/// A verb that has been asked for, with its options: returns the exit status. What it raises is shown to the user.
using Action = std::function<int(Tool&)>;

/// Where the value of an option goes, from which follows what it takes.
using OptionTarget = std::variant<bool*,                        ///< nothing: it is there or not
                                  std::string*,                 ///< a text
                                  std::optional<std::string>*,  ///< any text, also an empty one
                                  std::vector<std::string>*,    ///< any texts, one each time that it is given
                                  std::int16_t*,                ///< the id of a site
                                  std::optional<std::int16_t>*, std::vector<std::int16_t>*,
                                  std::vector<std::int64_t>*,  ///< ids that another tool may have given
                                  std::int64_t*>;              ///< a whole number from `least` to `most`

/// An option of a verb, or what stands behind it without a name of its own.
struct VerbOption {
  /// "--json", or for what is told by its place "ID".
  std::string name;
  OptionTarget target;
  std::string meaning;
  /// What stands for its value in the help; empty for the word of its kind.
  std::string type{};
  bool required = false;
  /// The values that a text is one of; none for any.
  std::vector<std::string> oneOf{};
  std::int64_t least = 0;
  std::int64_t most = 0;
  /// The option that it cannot stand beside, and the one that it needs.
  std::string excludes{};
  std::string needs{};
};

/// What the tool can be asked for. The targets of the options live as long as `action`.
struct Verb {
  std::string name;
  std::string summary;
  std::vector<VerbOption> options;
  /// What stands below its help.
  std::string footer;
  Action action;
};

/// The id of a site, which must be given.
VerbOption siteIdOption(std::int16_t& idSite);
/// `--json`
VerbOption jsonOption(bool& json);
/// The examples that stand below a verb's help: each the arguments behind the program's name, and what they do.
std::string examples(std::initializer_list<std::pair<const char*, const char*>> lines);

}  // namespace tarnwick
