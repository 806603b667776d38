// SPDX-License-Identifier: MIT
#include "delivery/delivery.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "store/alarm_values.h"
#include "store/channel_table.h"

namespace tarnwick {
namespace {

using std::chrono::minutes;
using std::chrono::seconds;

/// How long a try belongs to who has begun it.
constexpr seconds kTry = ChannelSender::kLimit + seconds(2);
/// How long what may be bundled waits for the rest of its pass.
constexpr seconds kLongestHold{20};
constexpr seconds kPatience = std::chrono::hours(24);
/// How often it is looked whether another program has left something behind.
constexpr seconds kLongestSleep{60};

seconds pauseAfter(int tries) {
  constexpr std::array<minutes, 4> kPauses{minutes(1), minutes(5), minutes(15), Delivery::kLongestPause};
  return kPauses.at(static_cast<std::size_t>(std::clamp(tries, 1, static_cast<int>(kPauses.size())) - 1));
}

// What lies further ahead than any pause was written before the clock was set back.
bool isDue(LocalTime time, LocalTime now) { return time <= now || time > now + Delivery::kLongestPause + kTry; }

std::optional<std::size_t> bundleOf(const Channel& channel) {
  const std::string from = channel.setting(channel_field::bundle);
  return from.empty() ? std::nullopt : std::optional(static_cast<std::size_t>(std::atoll(from.c_str())));
}

bool names(std::string_view list, std::string_view name) {
  return std::ranges::any_of(readNames(list).value_or(std::vector<std::string>()),
                             [&](const std::string& one) { return equalsIgnoringCase(one, name); });
}

}  // namespace

Delivery::Delivery(Database& database, Channels& channels, Outbox& outbox, const Services& services)
    : db_(database),
      channels_(channels),
      outbox_(outbox),
      services_(services),
      secrets_(services.secrets.makeSecretStore(database.programFolder())),
      timer_(services.timers.makeTimer([this] { deliver(); })) {}

Delivery::~Delivery() = default;

// A site must not fall silent because the channels that it names were renamed or removed.
std::vector<Channel> Delivery::channelsOf(const std::optional<std::string>& own) {
  const std::vector<Channel>& all = channels_.channelsInForce();
  const bool hasOwn = own && (equalsIgnoringCase(*own, channel_value::none) ||
                              std::ranges::any_of(all, [&](const Channel& each) { return names(*own, each.name); }));
  std::vector<Channel> through;
  std::ranges::copy_if(all, std::back_inserter(through), [&](const Channel& channel) {
    return channel.on && (hasOwn ? names(*own, channel.name) : channel.forAll);
  });
  return through;
}

bool Delivery::tellsOf(const std::optional<std::string>& own) { return !channelsOf(own).empty(); }

bool Delivery::replacesMail() {
  try {
    replacesMail_ = std::ranges::any_of(channels_.channelsInForce(), [](const Channel& channel) {
      return channel.on && channel.kind == channel_kind::mail;
    });
  } catch (const DataAccessError&) {
    // As it was; what is wrong with the list is told by whatever is done with it next.
  }
  return replacesMail_;
}

bool Delivery::wantsPage(const std::optional<std::string>& own) {
  return std::ranges::any_of(channelsOf(own), [](const Channel& channel) {
    return channel.setting(channel_field::attach) == option_value::on;
  });
}

void Delivery::add(Alert alert, const std::optional<std::string>& own) {
  std::vector<std::int64_t> ids;
  std::vector<std::int64_t> idsWithPage;
  for (const Channel& channel : channelsOf(own)) {
    const bool attaches = channel.setting(channel_field::attach) == option_value::on;
    (attaches ? idsWithPage : ids).push_back(channel.id);
  }
  outbox_.addAlert(alert, idsWithPage);
  alert.page.clear();
  outbox_.addAlert(alert, ids);
}

void Delivery::addUnkept(const Alert& alert, const std::optional<std::string>& own) {
  for (const Channel& channel : channelsOf(own)) {
    unkept_.push_back(
        {.id = 0, .idChannel = channel.id, .alert = alert, .nextTry = alert.made, .deadline = alert.made + kPatience});
  }
  deliver();
}

std::optional<Delivery::LostTrial> Delivery::lostTrial() {
  const std::vector<Channel>& all = channels_.channelsInForce();
  if (all.empty()) {
    return std::nullopt;
  }
  for (const OutboxRow& row : outbox_.undelivered(kDailyTest, services_.clock.localNow() - kTrialPatience)) {
    const auto channel = std::ranges::find(all, row.idChannel, &Channel::id);
    if (channel != all.end() && channel->on) {
      return LostTrial{channel->name, row.answer};
    }
  }
  return std::nullopt;
}

void Delivery::beginPass() {
  inPass_ = true;
  passBegan_ = services_.clock.localNow();
}

void Delivery::endPass() {
  inPass_ = false;
  deliver();
}

void Delivery::deliver() {
  wake_.reset();
  bool isSetUp = true;
  try {
    std::erase_if(tries_, [&](const auto& tried) { return tried.second.reply && keep(tried.second); });
    for (const Channel& channel : std::vector<Channel>(channels_.channelsInForce())) {
      if (channel.on && !tries_.contains(channel.id)) {
        deliverThrough(channel);
      }
    }
    isSetUp = !channels_.channelsInForce().empty();
    fault_.clear();
  } catch (const std::exception& error) {
    fault_ = error.what();
  }
  arm(isSetUp);
}

void Delivery::stop() {
  std::erase_if(tries_, [](const auto& tried) { return !tried.second.reply; });
  timer_->setEnabled(false);
}

bool Delivery::anyFirst(const std::function<bool(const OutboxRow& first)>& holds) {
  try {
    return std::ranges::any_of(channels_.channelsInForce(), [&](const Channel& channel) {
      const std::optional<OutboxRow> first = channel.on && canTry(channel) ? firstOf(channel) : std::nullopt;
      return first && holds(*first);
    });
  } catch (const DataAccessError&) {
    return false;
  }
}

bool Delivery::hasUntried() {
  return anyFirst([](const OutboxRow& first) { return first.tries == 0; });
}

bool Delivery::hasDue() {
  return isUnderWay() || anyFirst([&](const OutboxRow& first) {
           const bool isBeingTried = first.tries > 0 && !first.lastTry;
           return isBeingTried || isDue(first.nextTry, services_.clock.localNow());
         });
}

// Only a program with a desktop can show a notice.
bool Delivery::canTry(const Channel& channel) const {
  return channel.kind != channel_kind::notice || services_.notifier.isThere();
}

bool Delivery::isHeld(const Channel& channel, const OutboxRow& row) const {
  const LocalTime now = services_.clock.localNow();
  return bundleOf(channel) && inPass_ && row.alert.pass == passBegan_ && row.tries == 0 && row.alert.made <= now &&
         now - row.alert.made < kLongestHold;
}

std::optional<OutboxRow> Delivery::firstOf(const Channel& channel) {
  const auto unkept = std::ranges::find(unkept_, channel.id, &OutboxRow::idChannel);
  return unkept != unkept_.end() ? *unkept : outbox_.firstWaiting(channel.id);
}

// Those of its pass leave with it where they are enough for a bundle.
std::vector<OutboxRow> Delivery::bundleWith(const Channel& channel, const OutboxRow& first) {
  if (const auto from = bundleOf(channel); from && first.id != 0) {
    std::vector<OutboxRow> rows = outbox_.waitingLike(first);
    if (rows.size() >= *from) {
      return rows;
    }
  }
  return {first};
}

void Delivery::deliverThrough(const Channel& channel) {
  while (const std::optional<OutboxRow> first = firstOf(channel)) {
    const LocalTime now = services_.clock.localNow();
    if (!canTry(channel)) {
      if (first->deadline > now || first->id == 0) {
        return;  // another program may have a desktop
      }
      outbox_.setNotSent({&*first, 1}, now, "Nobody could tell it within a day.", std::nullopt);
      continue;
    }
    if (!isDue(first->nextTry, now)) {
      wakeAt(first->nextTry);
      return;
    }
    if (!isHeld(channel, *first)) {
      if (std::vector<OutboxRow> rows = bundleWith(channel, *first); claim(rows)) {
        begin(channel, std::move(rows));
        return;
      }
    }
    wakeAt(now + seconds(1));
    return;
  }
}

// Where there is no room to say so in the outbox the alert leaves all the same.
bool Delivery::claim(std::vector<OutboxRow>& rows) {
  if (rows.front().id != 0) {
    try {
      std::optional<Transaction> whole = Transaction::tryBegin(db_);
      if (!whole || !outbox_.claim(rows, services_.clock.localNow() + kTry)) {
        return false;
      }
      whole->commit();
    } catch (const DataAccessError& error) {
      if (!error.forWantOfRoom()) {
        throw;
      }
    }
  }
  for (OutboxRow& row : rows) {
    ++row.tries;
  }
  return true;
}

void Delivery::begin(const Channel& channel, std::vector<OutboxRow> rows) {
  Try& tried = tries_[channel.id];
  tried.rows = rows;
  tried.sender = std::make_unique<ChannelSender>(services_, *secrets_, noticeActed_);
  tried.sender->send(channel, std::nullopt, std::move(rows), [this, id = channel.id](SendReply reply) {
    tries_.at(id).reply = std::move(reply);
    deliver();
    if (changed_) {
      changed_();
    }
  });
}

// False where another program has the file locked: it is kept as soon as that is over.
bool Delivery::keep(const Try& tried) {
  if (tried.rows.front().id == 0) {
    keepUnkept(tried);
    return true;
  }
  std::optional<Transaction> whole = Transaction::tryBegin(db_);
  if (!whole) {
    wakeAt(services_.clock.localNow() + seconds(1));
    return false;
  }
  const LocalTime now = services_.clock.localNow();
  const OutboxRow& first = tried.rows.front();
  if (tried.reply->sent) {
    outbox_.setSent(tried.rows, now, tried.reply->words);
  } else if (first.deadline <= now) {
    outbox_.setNotSent(tried.rows, now, tried.reply->words, std::nullopt);
  } else {
    outbox_.setNotSent(tried.rows, now, tried.reply->words, now + pauseAfter(first.tries));
  }
  whole->commit();
  return true;
}

void Delivery::keepUnkept(const Try& tried) {
  const OutboxRow& first = tried.rows.front();
  const auto row = std::ranges::find(unkept_, first.idChannel, &OutboxRow::idChannel);
  const LocalTime now = services_.clock.localNow();
  if (row == unkept_.end()) {
    return;
  }
  if (tried.reply->sent || row->deadline <= now) {
    unkept_.erase(row);
  } else {
    row->tries = first.tries;
    row->answer = tried.reply->words;
    row->nextTry = now + pauseAfter(first.tries);
  }
}

void Delivery::wakeAt(LocalTime time) { wake_ = std::min(time, wake_.value_or(time)); }

// Without a channel there is nothing to wake up for.
void Delivery::arm(bool isSetUp) {
  const LocalTime now = services_.clock.localNow();
  const bool waitsForKeeping =
      std::ranges::any_of(tries_, [](const auto& tried) { return tried.second.reply.has_value(); });
  const bool isBusy = !fault_.empty() || waitsForKeeping;
  timer_->setInterval(isBusy ? seconds(1)
                             : std::clamp(wake_.value_or(now + kLongestSleep) - now, seconds(1), kLongestSleep));
  timer_->setEnabled(isBusy || isSetUp);
}

void Delivery::test(const Channel& channel, const std::optional<std::string>& secret,
                    std::function<void(SendReply)> done) {
  const LocalTime now = services_.clock.localNow();
  OutboxRow row;
  row.idChannel = channel.id;
  row.alert.made = now;
  row.alert.pass = now;
  row.alert.event = "test";
  row.alert.cause = "This is a test of the channel " + channel.name + ". Alerts that look like this one will follow.";
  tester_ = std::make_unique<ChannelSender>(services_, *secrets_);
  tester_->send(channel, secret, {row}, std::move(done));
}

}  // namespace tarnwick
