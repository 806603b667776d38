// SPDX-License-Identifier: MIT
#include "delivery/channel_sender.h"

#include <utility>

#include "alerts/alert_facts.h"
#include "base/command_line.h"
#include "base/text.h"
#include "delivery/alert_text.h"
#include "delivery/hook_request.h"
#include "delivery/mail_letter.h"
#include "store/channel_table.h"

namespace tarnwick {
namespace {

constexpr std::chrono::seconds kProgramLimit{50};
constexpr std::size_t kLongestAnswer = 300;
constexpr int kFirstRefusal = 300;  // RFC 9110, section 15: what is below has been accepted

SendReply replyOf(const TransferResult& result) {
  const std::string answer = plainLine(trimmed(std::string_view(result.page).substr(0, kLongestAnswer)));
  if (result.fault != TransferFault::none) {
    return {false, plainLine(result.cause)};
  }
  const std::string words = std::to_string(result.status) + (answer.empty() ? "" : " ") + answer;
  return {result.status < kFirstRefusal, words};
}

SendReply replyOf(const ProgramEnd& end) {
  if (!end.started) {
    return {false, "The program could not be started. Is its path right, and may it be run?"};
  }
  if (!end.status) {
    return {true, "started, still running"};
  }
  const std::string error = end.lastError.empty() ? std::string() : ": " + plainLine(end.lastError);
  return {*end.status == 0, "exit status " + std::to_string(*end.status) + error};
}

}  // namespace

bool needsSecret(const Channel& channel) {
  if (channel.kind == channel_kind::mail) {
    return !channel.setting(channel_field::user).empty() && channel.setting(channel_field::tokenCommand).empty();
  }
  constexpr std::string_view kSecret = "{secret";
  return channel.kind == channel_kind::hook &&
         (channel.setting(channel_field::address) + channel.setting(channel_field::headers) +
          channel.setting(channel_field::body))
                 .find(kSecret) != std::string::npos;
}

/// Lives as long as an answer may come; nobody hears it any more once `done` is empty.
struct ChannelSender::Work : std::enable_shared_from_this<Work> {
  Work(const Services& machine, SecretStore& kept, NoticeActed acted)
      : services(machine), secrets(kept), noticeActed(std::move(acted)) {}

  void begin(const std::optional<std::string>& given);
  void tell(const std::string& secret);
  void tellByMail(const std::string& secret);
  void tellByHook(const std::string& secret);
  void tellByNotice();
  void runTokenCommand();
  void tellByProgram();
  void tellBySound();
  std::vector<std::string> argumentsOf(const std::string& command) const;
  void end(SendReply reply);
  /// Through the event loop, for what is known at once.
  void endSoon(SendReply reply);

  Services services;
  SecretStore& secrets;
  NoticeActed noticeActed;
  Channel channel;
  std::vector<OutboxRow> rows;
  AlertText message;
  std::function<void(SendReply)> done;
  std::unique_ptr<MailTransfer> mail;
  std::unique_ptr<TransferControl> web;
  std::unique_ptr<Timer> soon;
  std::unique_ptr<Timer> limit;
};

void ChannelSender::Work::end(SendReply reply) {
  if (!done) {
    return;
  }
  soon.reset();
  limit.reset();
  const auto self = shared_from_this();  // `done` may destroy the sender
  std::exchange(done, nullptr)(std::move(reply));
}

void ChannelSender::Work::endSoon(SendReply reply) {
  soon = services.timers.makeTimer([self = weak_from_this(), reply = std::move(reply)] {
    if (const auto work = self.lock()) {
      work->end(reply);
    }
  });
  soon->setInterval(std::chrono::milliseconds(1));
  soon->setEnabled(true);
}

void ChannelSender::Work::begin(const std::optional<std::string>& given) {
  limit = services.timers.makeTimer([self = weak_from_this()] {
    if (const auto work = self.lock()) {
      work->mail.reset();
      work->web.reset();
      work->end({false, "Nothing was answered within " + std::to_string(kLimit.count()) + " seconds."});
    }
  });
  limit->setInterval(kLimit);
  limit->setEnabled(true);
  if (given || !needsSecret(channel)) {
    if (channel.kind == channel_kind::mail && !given && !channel.setting(channel_field::tokenCommand).empty()) {
      runTokenCommand();
    } else {
      tell(given.value_or(""));
    }
    return;
  }
  secrets.read(secretName(channel.id), [self = weak_from_this()](const SecretStore::Answer& answer) {
    const auto work = self.lock();
    if (!work || !work->done) {
      return;
    }
    if (answer.secret) {
      work->tell(*answer.secret);
    } else {
      work->end({false, answer.why.empty() ? "The channel has no password or token. Give it one in its settings."
                                           : answer.why});
    }
  });
}

void ChannelSender::Work::runTokenCommand() {
  services.runner.run(splitCommandLine(channel.setting(channel_field::tokenCommand)), kProgramLimit,
                      [self = weak_from_this()](const ProgramEnd& end) {
                        const auto work = self.lock();
                        if (!work || !work->done) {
                          return;
                        }
                        const std::string token(trimmed(end.output));
                        if (end.status == 0 && !token.empty()) {
                          work->tell(token);
                        } else {
                          work->end({false, "The token command gave no token: " + replyOf(end).words});
                        }
                      });
}

void ChannelSender::Work::tell(const std::string& secret) {
  if (channel.kind == channel_kind::mail) {
    tellByMail(secret);
  } else if (channel.kind == channel_kind::hook) {
    tellByHook(secret);
  } else if (channel.kind == channel_kind::notice) {
    tellByNotice();
  } else if (channel.kind == channel_kind::program) {
    tellByProgram();
  } else {
    tellBySound();
  }
}

void ChannelSender::Work::tellByMail(const std::string& secret) {
  mail = services.mails.makeMailTransfer();
  mail->send(mailServer(channel, secret), mailLetter(channel, rows, message), [this](const MailReply& reply) {
    end({reply.delivered, plainLine(reply.words)});
  });
}

void ChannelSender::Work::tellByHook(const std::string& secret) {
  web = services.transfers.makeTransferControl();
  web->onIdle([this] { end(replyOf(web->takeResult())); });
  web->execute(hookRequest(channel, secret, rows, message));
}

void ChannelSender::Work::tellByNotice() {
  const std::int16_t idSite = rows.front().alert.idSite;
  Notice notice{message.title, rows.size() == 1 ? plainLine(rows.front().alert.cause) : message.text, {}};
  if (noticeActed && idSite != 0 && rows.size() == 1) {
    notice.actions = {{"default", "Show what changed"}, {"show", "Show what changed"}, {"mute", "Mute for an hour"}};
    if (happening(rows.front().alert) == "changed") {
      notice.actions.insert(notice.actions.begin() + 2, {"accept", "Accept"});
    }
  }
  services.notifier.show(
      notice,
      [acted = noticeActed, idSite](const std::string& key) {
        if (acted) {
          acted(idSite, key);
        }
      },
      [self = weak_from_this()](const std::string& why) {
        if (const auto work = self.lock()) {
          work->end({why.empty(), why.empty() ? "shown" : why});
        }
      });
}

std::vector<std::string> ChannelSender::Work::argumentsOf(const std::string& command) const {
  const Alert& alert = rows.front().alert;
  const std::unique_ptr<TcpSocket> host = services.sockets.makeTcpSocket();
  const AlertFacts facts{alert.url,
                         std::to_string(alert.idSite),
                         "",
                         host->localHostName(),
                         host->localIP(),
                         AlertEvent{alert.event, alert.downSince, alert.downFor, alert.checks, alert.firstError}};
  return splitCommandLine(std::string(trimmed(fillCommand(command, facts, services.clock))));
}

void ChannelSender::Work::tellByProgram() {
  services.runner.run(argumentsOf(channel.setting(channel_field::command)), kProgramLimit,
                      [self = weak_from_this()](const ProgramEnd& end) {
                        if (const auto work = self.lock()) {
                          work->end(replyOf(end));
                        }
                      });
}

void ChannelSender::Work::tellBySound() {
  const bool plays = services.sound.play(channel.setting(channel_field::file)) != 0;
  endSoon(plays ? SendReply{true, "played"}
                : SendReply{false, "The sound cannot be played. Is it a .wav file that is there?"});
}

ChannelSender::ChannelSender(const Services& services, SecretStore& secrets, NoticeActed noticeActed)
    : work_(std::make_shared<Work>(services, secrets, std::move(noticeActed))) {}

ChannelSender::~ChannelSender() { work_->done = nullptr; }

void ChannelSender::send(const Channel& channel, const std::optional<std::string>& secret, std::vector<OutboxRow> rows,
                         std::function<void(SendReply)> done) {
  work_->channel = channel;
  work_->message = alertTextOf(rows);
  work_->rows = std::move(rows);
  work_->done = std::move(done);
  work_->begin(secret);
}

}  // namespace tarnwick
