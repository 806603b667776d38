// SPDX-License-Identifier: MIT
#include "platform/secrets/kept_secrets.h"

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <new>
#include <optional>
#include <random>
#include <utility>
#include <QMetaObject>
#include <QObject>
#include <QPointer>

#include "base/decode_error.h"
#include "base/errors.h"
#include "base/one_line.h"
#include "platform/secrets/key_ring.h"
#include "platform/secrets/secret_file.h"

namespace tarnwick {
namespace {

/// What nothing else in the key ring is called.
std::string freshId() {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::random_device chance;
  std::string id;
  for (int i = 0; i < 32; ++i) {
    id += kDigits[chance() % kDigits.size()];
  }
  return id;
}

std::string keyOf(const std::string& name, const std::string& id) { return name + " " + id; }

class KeptStore final : public SecretStore {
 public:
  KeptStore(FileSystem& files, KeyRing* ring, std::string path) : files_(files), ring_(ring), path_(std::move(path)) {}

  void read(const std::string& name, std::function<void(Answer)> done) override {
    enqueue([this, name = oneLine(name), done = std::move(done)] { doRead(name, done); });
  }
  void store(const std::string& name, const std::string& secret, std::function<void(std::string)> done) override {
    enqueue([this, name = oneLine(name), secret, done = std::move(done)] { doStore(name, secret, done); });
  }
  void remove(const std::string& name, std::function<void()> done) override {
    enqueue([this, name = oneLine(name), done = std::move(done)] {
      replace(name, std::nullopt);
      finish(done);
    });
  }
  bool inKeyRing() const override { return ring_ != nullptr && ring_->isThere(); }

 private:
  using Step = std::function<void()>;

  void enqueue(Step step) {
    waiting_.push_back(std::move(step));
    if (!busy_) {
      begin();
    }
  }
  void begin() {
    busy_ = true;
    // With the context goes the call.
    QMetaObject::invokeMethod(
        &context_,
        [this] {
          const Step step = std::move(waiting_.front());
          waiting_.pop_front();
          try {
            step();
          } catch (const std::bad_alloc&) {
            // The event loop below is a C library's, too. What this was about has no answer; the next one has.
            if (busy_) {
              finish([] {});
            }
          }
        },
        Qt::QueuedConnection);
  }
  /// The answer may destroy this object.
  void finish(const Step& answer) {
    busy_ = false;
    if (!waiting_.empty()) {
      begin();
    }
    answer();
  }

  void doRead(const std::string& name, const std::function<void(Answer)>& done);
  void doStore(const std::string& name, const std::string& secret, const std::function<void(std::string)>& done);
  void keepInFile(const std::string& name, const std::string& secret, const std::function<void(std::string)>& done);
  std::string replace(const std::string& name, const std::optional<SecretFile::Entry>& entry);

  FileSystem& files_;
  KeyRing* ring_;
  std::string path_;
  std::deque<Step> waiting_;
  bool busy_ = false;
  QObject context_;
};

void KeptStore::doRead(const std::string& name, const std::function<void(Answer)>& done) {
  std::optional<SecretFile::Entry> entry;
  Answer answer;
  try {
    entry = SecretFile(files_, path_).find(name);
  } catch (const FileError& error) {
    answer.why = error.what();
  } catch (const DecodeError&) {
    answer.why = "A password in " + path_ + " is damaged. Enter it again.";
  }
  if (entry && entry->inKeyRing && ring_ != nullptr) {
    ring_->read(keyOf(name, entry->value), [this, alive = QPointer<QObject>(&context_), done](
                                               std::optional<std::string> secret, const std::string& why) {
      if (!alive) {
        return;
      }
      Answer given{.secret = std::move(secret)};
      if (!given.secret) {
        given.why = "The key ring of the desktop did not give the password out: " + why +
                    ". Unlock it, or enter the password again.";
      }
      finish([done, given] { done(given); });
    });
    return;
  }
  if (entry && entry->inKeyRing) {
    answer.why =
        "The password is kept in the key ring of the desktop, which only the window reaches. Enter it here once more, "
        "and it is kept in a file of the program folder that only you can read.";
  } else if (entry) {
    answer.secret = std::move(entry->value);
  }
  finish([done, answer] { done(answer); });
}

void KeptStore::doStore(const std::string& name, const std::string& secret,
                        const std::function<void(std::string)>& done) {
  if (!inKeyRing()) {
    keepInFile(name, secret, done);
    return;
  }
  const std::string id = freshId();
  ring_->write(
      keyOf(name, id), secret,
      [this, alive = QPointer<QObject>(&context_), name, secret, id, done](KeyRing::Kept kept, const std::string& why) {
        if (!alive) {
          return;
        }
        if (kept == KeyRing::Kept::unable) {
          keepInFile(name, secret, done);
          return;
        }
        std::string problem;
        if (kept == KeyRing::Kept::refused) {
          problem = "The key ring of the desktop did not take the password: " + why + ".";
        } else {
          problem = replace(name, SecretFile::Entry{id, true});
          if (!problem.empty()) {
            ring_->remove(keyOf(name, id));
          }
        }
        finish([done, problem] { done(problem); });
      });
}

void KeptStore::keepInFile(const std::string& name, const std::string& secret,
                           const std::function<void(std::string)>& done) {
  const std::string problem = replace(name, SecretFile::Entry{secret, false});
  finish([done, problem] { done(problem); });
}

/// Why that cannot be; empty when it was done. What the key ring had by that name goes.
std::string KeptStore::replace(const std::string& name, const std::optional<SecretFile::Entry>& entry) {
  try {
    SecretFile file(files_, path_);
    std::optional<SecretFile::Entry> old;
    try {
      old = file.find(name);
    } catch (const DecodeError&) {
      // It goes anyway.
    }
    file.set(name, entry);
    if (old && old->inKeyRing && ring_ != nullptr) {
      ring_->remove(keyOf(name, old->value));
    }
  } catch (const FileError& error) {
    return error.what();
  }
  return {};
}

}  // namespace

std::unique_ptr<SecretStore> KeptSecrets::makeSecretStore(const std::string& programFolder) {
  return std::make_unique<KeptStore>(files_, ring_, textOf(pathOf(programFolder) / "secrets"));
}

}  // namespace tarnwick
