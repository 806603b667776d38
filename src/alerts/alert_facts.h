// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace tarnwick {

/// Stands for what has happened. A command that names it is prepared for more than a failure.
inline constexpr std::string_view kEventPlaceholder = "~event~";

/// What an alert tells beyond that when it knows what has happened.
struct AlertEvent {
  std::string event;  ///< "down", "still down", "up", "unsteady", "slow", "certificate", "issuer", "offline", "online"
  std::string downSince;  ///< a date; empty when it is not known
  std::string downFor;    ///< "1 h 12 min"; empty when it is not known
  std::string checks;     ///< how many have failed, in decimal
  std::string firstError;
  std::string certificate{};  ///< until when it holds, and who has issued it; empty in an alert of something else
};

/// What an alert tells of a failed site. The date is none of the members: it is read from the clock where it is put in.
struct AlertFacts {
  std::string url;
  /// The site's id in decimal.
  std::string idSite;
  /// The address that receives the site's alerts.
  std::string email;
  std::string localHostName;
  std::string localIP;
  /// None for an alert that follows each failed check: its placeholders stay as they are written then.
  std::optional<AlertEvent> event{};
};

/// Replaces the placeholders "~date~", "~url~", "~idsite~", "~email~", "~localhostname~" and "~localip~", in this order
/// and this letter case, each wherever it occurs; where there is an event, "~event~", "~downSince~", "~downFor~",
/// "~checks~", "~firstError~" and "~certificate~" as well, behind them. A placeholder that an earlier value brings in
/// is replaced as well. Line ends and NUL bytes of the values are left out.
std::string fillTemplate(std::string text, const AlertFacts& facts, const Clock& clock);

/// The same for a command line, followed by the short forms "~1~" to "~6~" of the six in the same order; the clock is
/// read again for "~1~". Double quotes of the values neither open nor close a quoted argument when the result is split
/// by `splitCommandLine`. An address, with what its own placeholders bring in, is one argument and no option: its
/// blanks are encoded, and one that begins with a dash gets "http://".
std::string fillCommand(std::string text, const AlertFacts& facts, const Clock& clock);

}  // namespace tarnwick
