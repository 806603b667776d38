// SPDX-License-Identifier: MIT
#include "platform/web/curl_mails.h"

#include <list>
#include <utility>

#include "platform/web/authorities.h"
#include "platform/web/curl_event_loop.h"
#include "platform/web/curl_transfers.h"
#include "platform/web/mail_exchange.h"
#include "platform/web/mail_text.h"

namespace tarnwick {
namespace {

class CurlMailTransfer final : public MailTransfer {
 public:
  CurlMailTransfer(std::shared_ptr<CurlEventLoop> loop, std::shared_ptr<Authorities> authorities)
      : loop_(std::move(loop)), systems_(std::move(authorities)) {}
  ~CurlMailTransfer() override { CurlMailTransfer::cancel(); }
  CurlMailTransfer(const CurlMailTransfer&) = delete;
  CurlMailTransfer& operator=(const CurlMailTransfer&) = delete;

  void send(const MailServer& server, const MailMessage& message, std::function<void(MailReply)> done) override;
  void cancel() override;
  bool isUnderWay() const override { return run_ != nullptr; }

 private:
  /// One mail, from `send` until its answer is given.
  struct Run {
    std::shared_ptr<Authorities> authorities{};
    std::unique_ptr<MailExchange> exchange{};
    std::function<void(MailReply)> done{};
    MailReply reply = MailExchange::noMemory();
    /// Prepared, since there may be no memory for it later.
    std::list<CurlEventLoop::Event> answer{};
  };

  void begin(Run& run);
  void give() noexcept { loop_->post(std::move(run_->answer)); }
  void answer();

  std::shared_ptr<CurlEventLoop> loop_;
  std::shared_ptr<Authorities> systems_;
  std::shared_ptr<Run> run_;
};

void CurlMailTransfer::send(const MailServer& server, const MailMessage& message, std::function<void(MailReply)> done) {
  cancel();
  const auto run = std::make_shared<Run>();
  run->done = std::move(done);
  run->answer.emplace_back([this, weak = std::weak_ptr(run)] {
    if (!weak.expired()) {
      answer();
    }
  });
  run_ = run;
  if (std::string refusal = refusalOf(server, message); !refusal.empty()) {
    run->reply.words = std::move(refusal);
    give();
    return;
  }
  run->authorities = server.caFile.empty() ? systems_ : std::make_shared<Authorities>(server.caFile, std::string());
  run->exchange = std::make_unique<MailExchange>(server, message, *run->authorities, *loop_);
  if (server.safety == MailSafety::none || run->authorities->areRead()) {
    begin(*run);
    return;
  }
  run->authorities->whenRead(*loop_, [this, weak = std::weak_ptr(run)] {
    if (const auto waiting = weak.lock()) {
      begin(*waiting);
    }
  });
}

void CurlMailTransfer::begin(Run& run) {
  // The exchange ends its transfer when it goes, so `run` and `this` are there when it is called.
  const auto finish = [this, &run](MailReply reply) {
    if (reply.delivered || !reply.words.empty()) {
      run.reply = std::move(reply);
    }
    give();
  };
  if (!run.exchange->start(finish)) {
    give();
  }
}

void CurlMailTransfer::answer() {
  const std::shared_ptr<Run> run = std::move(run_);
  run->exchange.reset();
  // It may send the next one, or destroy us.
  run->done(std::move(run->reply));
}

void CurlMailTransfer::cancel() { run_.reset(); }

}  // namespace

CurlMails::CurlMails(const CurlTransfers& transfers) : loop_(transfers.loop()), authorities_(transfers.authorities()) {}
CurlMails::~CurlMails() = default;

std::unique_ptr<MailTransfer> CurlMails::makeMailTransfer() {
  return std::make_unique<CurlMailTransfer>(loop_, authorities_);
}

}  // namespace tarnwick
