// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/services.h"
#include "store/channels.h"
#include "store/outbox.h"

namespace tarnwick {

/// What became of a message.
struct SendReply {
  bool sent = false;
  /// One line, in the words of who was asked: a server, a program, the desktop.
  std::string words;
};

/// Sends one message through one channel, without blocking.
class ChannelSender {
 public:
  /// The longest that a message may take, the answer of a key ring's user included.
  static constexpr std::chrono::seconds kLimit{58};

  /// Called with what its user does about a desktop notice: "show", "accept", "mute", of that site.
  using NoticeActed = std::function<void(std::int16_t idSite, const std::string& key)>;

  ChannelSender(const Services& services, SecretStore& secrets, NoticeActed noticeActed = {});
  /// Ends what is under way; its `done` is not called.
  ~ChannelSender();
  ChannelSender(const ChannelSender&) = delete;
  ChannelSender& operator=(const ChannelSender&) = delete;

  /// Tells `rows`, of which there is one at least, through the channel. `secret` stands for the one that is kept for
  /// it, as when a channel is tried that is not stored yet. `done` is called once, through the event loop, and may
  /// destroy this object. REQUIRES: nothing was sent before.
  void send(const Channel& channel, const std::optional<std::string>& secret, std::vector<OutboxRow> rows,
            std::function<void(SendReply)> done);

 private:
  struct Work;
  std::shared_ptr<Work> work_;
};

/// Whether a message through the channel needs its secret.
bool needsSecret(const Channel& channel);

}  // namespace tarnwick
