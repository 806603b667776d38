// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/web/curl_mails.h"
#include "platform/web/curl_transfers.h"
#include "support/esmtp_server.h"
#include "support/wait_until.h"

namespace tarnwick::testing {

/// A mail, and what became of it.
class MailProbe {
 public:
  MailProbe() {
    server.host = "127.0.0.1";
    server.safety = MailSafety::none;
    message.from = "watch@example.org";
    message.to = {"me@example.org"};
    message.subject = "Down";
    message.text = "The page is gone.\n";
  }

  void start(std::uint16_t port) {
    reply.reset();
    server.port = port;
    mail->send(server, message, [this](MailReply came) {
      whileAnswered = mail->isUnderWay();
      reply = std::move(came);
    });
  }
  /// What was said in the end.
  std::string send(std::uint16_t port) {
    start(port);
    EXPECT_FALSE(reply) << "answered from inside the call";
    EXPECT_TRUE(waitUntil([this] { return reply.has_value(); }));
    return reply ? reply->words : "no answer";
  }
  bool delivered() const { return reply && reply->delivered; }

  CurlTransfers transfers;
  CurlMails mails{transfers};
  std::unique_ptr<MailTransfer> mail = mails.makeMailTransfer();
  MailServer server;
  MailMessage message;
  std::optional<MailReply> reply;
  bool whileAnswered = false;
};

}  // namespace tarnwick::testing
