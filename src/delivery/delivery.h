// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "delivery/channel_sender.h"
#include "platform/services.h"
#include "store/channels.h"
#include "store/outbox.h"
#include "store/site_options.h"

namespace tarnwick {

/// Has alerts leave through the channels that are set up, beside whatever else the program does: each is kept in the
/// outbox with the result that caused it, and tried until it has left. No call waits for anybody.
///
/// In each channel the order is kept: one alert, or one bundle, is on its way at a time, and those behind it wait for
/// it. A try that fails is followed by another one after 1, 5, 15 and then every 60 minutes, until one fails after more
/// than a day; what is given up then stays in the outbox and is told. Several programs may deliver from one outbox: who
/// begins a try says so there first. Where one is killed in a try, that alert may arrive twice, and none is lost.
class Delivery {
 public:
  /// The longest wait between two tries.
  static constexpr std::chrono::minutes kLongestPause{60};

  Delivery(Database& database, Channels& channels, Outbox& outbox, const Services& services);
  ~Delivery();
  Delivery(const Delivery&) = delete;
  Delivery& operator=(const Delivery&) = delete;

  /// The channels through which alerts of a site leave. `own` is the site's option `channels`, nothing where it has
  /// none; one that names no channel that is there counts as none.
  std::vector<Channel> channelsOf(const std::optional<std::string>& own);
  /// Whether there is any.
  bool tellsOf(const std::optional<std::string>& own);
  /// Whether a channel is there that takes the place of the original mails: one of the kind mail that is on.
  bool replacesMail();
  /// Whether the whole page is wanted with a site's alerts.
  bool wantsPage(const std::optional<std::string>& own);
  /// Keeps an alert for the site's channels. REQUIRES: the transaction of what caused it; `deliver` follows it.
  void add(Alert alert, const std::optional<std::string>& own);
  /// The same where nothing can be kept, as on a full disk: it is tried as the others, as long as this program runs.
  void addUnkept(const Alert& alert, const std::optional<std::string>& own);

  /// Between these two what may be bundled waits for the end of the pass, for a while.
  void beginPass();
  void endPass();
  /// When the pass began that is on, or the latest one.
  LocalTime passBegan() const { return passBegan_; }

  /// Begins to try whatever is due, now and, by a timer, from then on. Raises nothing: what keeps the outbox from being
  /// read or written is told by `fault`.
  void deliver();
  /// Ends what is under way; nothing is delivered until the next `deliver`.
  void stop();
  /// Whether a try is under way, or its outcome is still to be kept.
  bool isUnderWay() const { return !tries_.empty(); }
  /// Whether something that has not been tried is due and can be tried by this program; false while it cannot be read.
  bool hasUntried();
  /// The same for what has been tried before, or is just being tried by this program or another one.
  bool hasDue();
  /// How things stand in the outbox. Raises DataAccessError.
  OutboxSummary summary() { return outbox_.outboxSummary(); }
  /// When an alert of that event was made last. Raises DataAccessError.
  std::optional<LocalTime> lastMade(const std::string& event) { return outbox_.lastMade(event); }
  /// How long the daily test alert may take to arrive: three tries after the first one have been made by then.
  static constexpr std::chrono::minutes kTrialPatience{20};
  /// That a test alert has not arrived.
  struct LostTrial {
    std::string channel;  ///< by which it should have left
    std::string answer;   ///< what its last try came to; empty when there was none
  };
  /// The first channel that is on and by which the latest daily test alert has not arrived in time. "Arrived" is what
  /// the next server, program or desktop has taken: nobody tells of what becomes of it there. Raises DataAccessError.
  std::optional<LostTrial> lostTrial();
  /// Why nothing can be delivered just now; empty when it can.
  const std::string& fault() const { return fault_; }

  /// Sends a test message through a channel as it stands, stored or not, with this secret instead of the one that is
  /// kept for it. `done` follows through the event loop, unless another test is begun or this object ends first.
  void test(const Channel& channel, const std::optional<std::string>& secret, std::function<void(SendReply)> done);

  /// The secrets of the channels, by `secretName`.
  SecretStore& secrets() { return *secrets_; }

  /// Called when something in the outbox may have changed by this program, from the event loop.
  void onChanged(std::function<void()> changed) { changed_ = std::move(changed); }
  /// Called with what its user does about a desktop notice; see ChannelSender.
  void onNoticeActed(ChannelSender::NoticeActed acted) { noticeActed_ = std::move(acted); }

 private:
  struct Try {
    std::vector<OutboxRow> rows;
    std::unique_ptr<ChannelSender> sender;
    /// Until it has been kept.
    std::optional<SendReply> reply{};
  };

  bool isHeld(const Channel& channel, const OutboxRow& row) const;
  bool canTry(const Channel& channel) const;
  bool anyFirst(const std::function<bool(const OutboxRow& first)>& holds);
  void deliverThrough(const Channel& channel);
  std::optional<OutboxRow> firstOf(const Channel& channel);
  std::vector<OutboxRow> bundleWith(const Channel& channel, const OutboxRow& first);
  bool claim(std::vector<OutboxRow>& rows);
  void begin(const Channel& channel, std::vector<OutboxRow> rows);
  bool keep(const Try& tried);
  void keepUnkept(const Try& tried);
  void wakeAt(LocalTime time);
  void arm(bool isSetUp);

  Database& db_;
  Channels& channels_;
  Outbox& outbox_;
  Services services_;
  std::unique_ptr<SecretStore> secrets_;
  std::unique_ptr<Timer> timer_;
  // By channel.
  std::map<std::int64_t, Try> tries_;
  // Those that could not be kept, with id 0.
  std::vector<OutboxRow> unkept_;
  std::unique_ptr<ChannelSender> tester_;
  std::function<void()> changed_;
  ChannelSender::NoticeActed noticeActed_;
  LocalTime passBegan_{};
  bool inPass_ = false;
  bool replacesMail_ = false;
  std::optional<LocalTime> wake_;
  std::string fault_;
};

}  // namespace tarnwick
