// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// What an option takes.
enum class OptionKind {
  flag,    ///< "on" or "off"
  number,  ///< a whole number from `least` to `most`, or one of `choices` where there are any
  choice,  ///< one of `choices`
  text,    ///< any text but the empty one; with a `form`, what that takes
};

/// Something that a site, or the program, does otherwise than it did originally, when its user wants it to. An option
/// that is set for no site and not for all leaves the original behaviour.
struct OptionField {
  std::string name;  ///< letters and digits: it stands on command lines and in JSON
  OptionKind kind = OptionKind::text;
  /// Whether a single site may have a value of its own; otherwise there is one for all.
  bool ofSite = false;
  std::int64_t least = 0;
  std::int64_t most = 0;
  std::vector<std::string> choices{};
  std::string unit{};         ///< of a number, for people: "seconds"; else empty
  std::string recommended{};  ///< the value in a fresh list; empty when it is unset there, too
  std::string original;       ///< what happens while it is unset: "the wait has no end"
  std::string label;          ///< a few words for people: "Longest mail exchange"
  std::string meaning;        ///< for a help text, without a full stop
  /// Of a text: the form in which it is stored, or nothing for one that is not taken; null where any is.
  std::optional<std::string> (*form)(std::string_view value) = nullptr;
  /// Of a text with a form: what is taken, for people, with an example.
  std::string takes{};

  /// The values that it takes, for people: "a number from 1 to 3600 (seconds)".
  std::string values() const;
  /// `value` as it is stored: letter case of words as in the table, numbers without what is needless. Raises
  /// std::runtime_error, which names the option, the value and what is taken.
  std::string checked(std::string_view value) const;
};

/// The options that the program asks for.
namespace option_name {
inline constexpr std::string_view newSites = "newSites";
inline constexpr std::string_view adopt = "adopt";
inline constexpr std::string_view mailLimit = "mailLimit";
inline constexpr std::string_view logLimit = "logLimit";
inline constexpr std::string_view parallel = "parallel";
inline constexpr std::string_view perHost = "perHost";
inline constexpr std::string_view spacing = "spacing";
inline constexpr std::string_view alerts = "alerts";
inline constexpr std::string_view confirm = "confirm";
inline constexpr std::string_view confirmAfter = "confirmAfter";
inline constexpr std::string_view recovery = "recovery";
inline constexpr std::string_view remind = "remind";
inline constexpr std::string_view flapping = "flapping";
inline constexpr std::string_view slow = "slow";
inline constexpr std::string_view quiet = "quiet";
inline constexpr std::string_view quietHow = "quietHow";
inline constexpr std::string_view maintenance = "maintenance";
inline constexpr std::string_view pause = "pause";
inline constexpr std::string_view ownNetwork = "ownNetwork";
inline constexpr std::string_view witnesses = "witnesses";
inline constexpr std::string_view channels = "channels";
inline constexpr std::string_view allIsWell = "allIsWell";
inline constexpr std::string_view testAlert = "testAlert";
inline constexpr std::string_view heartbeat = "heartbeat";
inline constexpr std::string_view history = "history";
inline constexpr std::string_view historyHours = "historyHours";
inline constexpr std::string_view certificate = "certificate";
}  // namespace option_name

/// Values that it asks for.
namespace option_value {
inline constexpr std::string_view atOnce = "at once";
inline constexpr std::string_view pagesOnly = "pages only";
inline constexpr std::string_view automatic = "auto";
inline constexpr std::string_view on = "on";
inline constexpr std::string_view off = "off";
inline constexpr std::string_view never = "never";
inline constexpr std::string_view growing = "growing";
inline constexpr std::string_view everyCheck = "every check";
inline constexpr std::string_view keepAlerts = "keep alerts";
inline constexpr std::string_view doNotCheck = "do not check";
}  // namespace option_value

/// The options of this program, in the order in which they are shown.
const std::vector<OptionField>& programOptions();

}  // namespace tarnwick
