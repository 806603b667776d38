// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "store/channels.h"

namespace tarnwick {

/// How a service wants to be told, as a file of the folder `channels` says it: lines of `name = value`, blank ones and
/// those that begin with `#` left out. Names are `label`, `about`, `secret` and the fields of a web hook; in a value
/// `\n` is a line end and `\\` a backslash.
struct ChannelPreset {
  std::string name;    ///< the file's, without its ending, in lower case: "ntfy"
  std::string label;   ///< for people: "ntfy"
  std::string about;   ///< what it does, without a full stop
  std::string secret;  ///< what its secret is, for people; empty for one that needs none
  /// Fields of a web hook. Its address is an example: what is in capitals there is the user's own.
  OptionValues settings;
};

/// The preset that a file of that name holds. Raises std::runtime_error, which names the file, the line and what is
/// wrong with it.
ChannelPreset readPreset(const std::string& name, std::string_view text);

/// The presets there are, by name, and what is wrong with the files of others.
struct ChannelPresets {
  std::vector<ChannelPreset> presets;
  std::vector<std::string> faults;

  /// The one of that name, in any letter case; raises std::runtime_error, which lists all of them, for another name.
  const ChannelPreset& preset(std::string_view name) const;
};

/// Those in the folders `channels` of the program's installation and of the program folder: one of the user's own takes
/// the place of one of the installation that has its name. Raises nothing.
ChannelPresets readPresets(FileSystem& files, const std::string& installation, const std::string& programFolder);

/// `own` with what the preset has beside it. Headers of both are sent, of one name the own.
OptionValues withPreset(const ChannelPreset& preset, OptionValues own);

}  // namespace tarnwick
