// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/data_changes.h"
#include "store/database.h"
#include "store/site_options.h"

namespace tarnwick {

/// A way by which alerts leave, as its user has set it up.
struct Channel {
  std::int64_t id = 0;  ///< 0 for one that is not stored
  std::string name;     ///< one line without commas; no two have the same, in any letter case
  std::string kind;     ///< one of `channel_kind`
  bool on = true;
  /// Whether it tells of all sites that name no channels of their own.
  bool forAll = true;
  /// What is set of the fields of its kind.
  OptionValues settings{};

  /// The setting of that name; empty when it is unset.
  std::string setting(std::string_view field) const;
  bool operator==(const Channel&) const = default;
};

/// The name under which the secret of a channel is kept.
std::string secretName(std::int64_t idChannel);

/// Raises std::runtime_error, which names what is wrong and what would be right, for a channel that cannot be used: one
/// without a name, with a field that its kind lacks or whose value that does not take, or without one that has to be
/// set. Returns it with its values in the form in which they are stored.
Channel checkedChannel(Channel channel);

/// Table `channels`. A list without the table reads as if it were empty. Every failed statement raises DataAccessError.
class Channels {
 public:
  explicit Channels(Database& database) : db_(database) {}

  /// All of them, in the order in which they were made.
  std::vector<Channel> channels();
  /// The same, read again only after something has changed, since it is asked at each failed check.
  const std::vector<Channel>& channelsInForce();
  /// The one of that name, in any letter case; nothing when there is none.
  std::optional<Channel> channelNamed(std::string_view name);
  /// Stores a channel, in place of the one with its id, and returns the id. Raises std::runtime_error as
  /// `checkedChannel` does, and when another one has its name. Sites that name it follow a new name.
  std::int64_t storeChannel(const Channel& channel);
  /// How many sites name that channel among their own, in any letter case.
  std::int64_t sitesNaming(std::string_view name);
  /// Removes it with the alerts that wait for it. Nothing when there is none.
  void removeChannel(std::int64_t idChannel);

 private:
  Database& db_;
  DataChanges changes_{db_};
  // What was read last, and at which edition of the options.
  std::optional<std::vector<Channel>> inForce_;
  std::uint64_t edition_ = 0;
};

}  // namespace tarnwick
