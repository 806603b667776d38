// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop.h"
#include "platform/mail_transfer.h"
#include "platform/notifier.h"
#include "platform/secret_store.h"
#include "platform/timer.h"

namespace tarnwick::testing {

/// Answers that come later, as those of the real doors: a millisecond of the timers that the test has, real ones or
/// those that it cranks.
class Later {
 public:
  explicit Later(TimerMaker& timers) : timer_(timers.makeTimer([this] { answer(); })) {
    timer_->setInterval(std::chrono::milliseconds(1));
  }
  Later(const Later&) = delete;
  Later& operator=(const Later&) = delete;

  void post(std::function<void()> answer) {
    waiting_.push_back(std::move(answer));
    timer_->setEnabled(true);
  }
  void clear() { waiting_.clear(); }

 private:
  void answer() {
    const std::weak_ptr<char> alive = alive_;
    // A timer that was destroyed by its own tick ticks no more when that is over.
    const std::shared_ptr<Timer> timer = timer_;
    for (std::size_t left = waiting_.size(); left > 0 && !waiting_.empty(); --left) {
      const std::function<void()> next = std::move(waiting_.front());
      waiting_.pop_front();
      next();
      if (alive.expired()) {
        timer->setEnabled(false);
        return;
      }
    }
    timer->setEnabled(!waiting_.empty());
  }

  std::list<std::function<void()>> waiting_;
  // Tells whether an answer has destroyed us.
  std::shared_ptr<char> alive_ = std::make_shared<char>();
  std::shared_ptr<Timer> timer_;
};

/// Mail that goes nowhere: it is recorded, and answered from a queue.
class RecordingMails final : public MailTransferMaker {
 public:
  explicit RecordingMails(TimerMaker& timers) : timers_(timers) {}

  struct Sent {
    MailServer server;
    MailMessage message;
  };
  std::unique_ptr<MailTransfer> makeMailTransfer() override { return std::make_unique<Transfer>(*this); }

  /// Queues the answer of the next mail that has none yet; without one it is delivered.
  void answer(MailReply reply) { replies_.push_back(std::move(reply)); }
  /// The server takes whatever comes from now on.
  void forgetAnswers() { replies_.clear(); }
  /// While set, no mail is answered: a server that keeps silent.
  bool silent = false;
  /// Every mail that was begun, the oldest first.
  std::vector<Sent> sent;
  /// Every mail that a server has taken over.
  std::vector<Sent> taken;
  /// How many were cut off before they had their answer.
  std::size_t cut = 0;

 private:
  class Transfer final : public MailTransfer {
   public:
    explicit Transfer(RecordingMails& mails) : mails_(mails), later_(mails.timers_) {}
    ~Transfer() override { Transfer::cancel(); }
    Transfer(const Transfer&) = delete;
    Transfer& operator=(const Transfer&) = delete;

    void send(const MailServer& server, const MailMessage& message, std::function<void(MailReply)> done) override {
      mails_.sent.push_back({server, message});
      underWay_ = true;
      if (!mails_.silent) {
        const MailReply reply = mails_.next();
        if (reply.delivered) {
          mails_.taken.push_back(mails_.sent.back());
        }
        later_.post([this, done = std::move(done), reply] {
          underWay_ = false;
          done(reply);
        });
      }
    }
    void cancel() override {
      mails_.cut += underWay_ ? 1 : 0;
      underWay_ = false;
      later_.clear();
    }
    bool isUnderWay() const override { return underWay_; }

   private:
    RecordingMails& mails_;
    bool underWay_ = false;
    Later later_;
  };

  MailReply next() {
    if (replies_.empty()) {
      return {.delivered = true, .words = "The message: 250 taken"};
    }
    MailReply reply = std::move(replies_.front());
    replies_.pop_front();
    return reply;
  }

  TimerMaker& timers_;
  std::deque<MailReply> replies_;
};

/// Secrets in memory, by program folder and name.
class RecordingSecrets final : public SecretStoreMaker {
 public:
  explicit RecordingSecrets(TimerMaker& timers) : timers_(timers) {}

  std::unique_ptr<SecretStore> makeSecretStore(const std::string& programFolder) override {
    return std::make_unique<Store>(*this, programFolder);
  }

  std::map<std::pair<std::string, std::string>, std::string> kept;
  /// While not empty: why nothing can be read or stored.
  std::string locked;
  bool inKeyRing = false;
  /// The names that were read, the oldest first.
  std::vector<std::string> read;

 private:
  class Store final : public SecretStore {
   public:
    Store(RecordingSecrets& secrets, std::string folder)
        : secrets_(secrets), folder_(std::move(folder)), later_(secrets.timers_) {}

    void read(const std::string& name, std::function<void(Answer)> done) override {
      secrets_.read.push_back(name);
      later_.post([this, name, done = std::move(done)] { done(find(name)); });
    }
    void store(const std::string& name, const std::string& secret, std::function<void(std::string)> done) override {
      if (secrets_.locked.empty()) {
        secrets_.kept[{folder_, name}] = secret;
      }
      later_.post([why = secrets_.locked, done = std::move(done)] { done(why); });
    }
    void remove(const std::string& name, std::function<void()> done) override {
      secrets_.kept.erase({folder_, name});
      later_.post(std::move(done));
    }
    bool inKeyRing() const override { return secrets_.inKeyRing; }

   private:
    Answer find(const std::string& name) const {
      if (!secrets_.locked.empty()) {
        return {.why = secrets_.locked};
      }
      const auto found = secrets_.kept.find({folder_, name});
      return found != secrets_.kept.end() ? Answer{.secret = found->second} : Answer{};
    }

    RecordingSecrets& secrets_;
    std::string folder_;
    Later later_;
  };

  TimerMaker& timers_;
};

/// A desktop that shows no notice.
class RecordingNotifier final : public Notifier {
 public:
  explicit RecordingNotifier(TimerMaker& timers) : later_(timers) {}

  void show(const Notice& notice, std::function<void(std::string key)> acted,
            std::function<void(std::string why)> done) override {
    shown.push_back(notice);
    actions_.push_back(std::move(acted));
    later_.post([why = refusal, done = std::move(done)] {
      if (done) {
        done(why);
      }
    });
  }
  bool isThere() override { return there; }
  /// The user takes that action of a notice, counted from 0.
  void act(std::size_t index, const std::string& key) {
    if (const auto action = actions_.at(index)) {
      action(key);
    }
  }

  bool there = true;
  /// Why the notices are not shown; empty: they are.
  std::string refusal;
  std::vector<Notice> shown;

 private:
  std::vector<std::function<void(std::string)>> actions_;
  Later later_;
};

/// Runs no program.
class RecordingRunner final : public ProgramRunner {
 public:
  explicit RecordingRunner(TimerMaker& timers) : later_(timers) {}

  void run(const std::vector<std::string>& arguments, std::chrono::seconds limit,
           std::function<void(ProgramEnd)> done) override {
    ran.push_back(arguments);
    limits.push_back(limit);
    ProgramEnd end{.started = true, .status = 0};
    if (!ends_.empty()) {
      end = std::move(ends_.front());
      ends_.pop_front();
    }
    later_.post([end = std::move(end), done = std::move(done)] { done(end); });
  }

  /// Queues the end of the next program that has none yet; without one it ends well.
  void answer(ProgramEnd end) { ends_.push_back(std::move(end)); }
  std::vector<std::vector<std::string>> ran;
  std::vector<std::chrono::seconds> limits;

 private:
  std::deque<ProgramEnd> ends_;
  Later later_;
};

}  // namespace tarnwick::testing
