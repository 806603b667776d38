// SPDX-License-Identifier: MIT
#include "cli/verbs/delivery_words.h"

#include "delivery/channel_sender.h"
#include "delivery/delivery.h"
#include "engine/proof_of_life.h"

namespace tarnwick {
namespace {

std::string textOf(std::int64_t count, const char* one, const char* more, const std::string& why) {
  return count == 0 ? std::string()
                    : std::to_string(count) + (count == 1 ? one : more) + (why.empty() ? "" : ": " + visibleText(why));
}

}  // namespace

std::string delayText(const OutboxSummary& summary) {
  return textOf(summary.delayed, " alert is waiting", " alerts are waiting", summary.delayedBy);
}

std::string lossText(const OutboxSummary& summary) {
  return textOf(summary.failed, " alert was given up", " alerts were given up", summary.failedBy);
}

std::string trialText(m& data) {
  if (ProofOfLife::lacksChannel(data.optionsInForce(), data.delivery())) {
    return "The daily messages cannot leave: no channel is on for all sites.";
  }
  const auto lost = data.delivery().lostTrial();
  return lost ? "The daily test alert has not arrived through " + visibleText(lost->channel) +
                    (lost->answer.empty() ? "." : ": " + visibleText(lost->answer))
              : std::string();
}

std::string heartbeatText(const std::string& fault) { return "The heartbeat is not taken: " + visibleText(fault); }

void awaitDelivery(const Services& services, const std::function<bool()>& goesOn) {
  bool isOver = false;
  const auto limit = services.timers.makeTimer([&] { isOver = true; });
  limit->setInterval(ChannelSender::kLimit + std::chrono::seconds(2));
  limit->setEnabled(true);
  while (!isOver && !services.pump.closing() && goesOn()) {
    services.pump.waitForEvent();
  }
}

std::string storeSecret(m& data, const Services& services, std::int64_t idChannel, const std::string& secret) {
  return awaited<std::string>(services, "The key ring has not answered.", [&](auto answered) {
    data.delivery().secrets().store(secretName(idChannel), secret, answered);
  });
}

void hintAtSecret(Console& console, const Channel& channel) {
  console.complain("The channel " + channel.name +
                   " has no password or token yet. Give it: tarnwickctl channel set \"" + channel.name +
                   "\" --password-file FILE");
}

void deliverAndTell(Console& console, m& data, const Services& services) {
  if (data.channelsInForce().empty()) {
    if (const std::string text = trialText(data); !text.empty()) {
      console.complain(text);
    }
    return;
  }
  Delivery& delivery = data.delivery();
  delivery.deliver();
  awaitDelivery(services, [&] { return delivery.isUnderWay() || delivery.hasUntried(); });
  const OutboxSummary summary = data.outboxSummary();
  for (const std::string& text : {delayText(summary), lossText(summary), trialText(data), delivery.fault()}) {
    if (!text.empty()) {
      console.complain(text);
    }
  }
}

}  // namespace tarnwick
