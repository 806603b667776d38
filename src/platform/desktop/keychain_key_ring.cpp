// SPDX-License-Identifier: MIT
#include <qt6keychain/keychain.h>

#include <utility>
#include <QDBusConnection>

#include "platform/desktop/desktop_key_ring.h"
#include "platform/desktop/session_bus.h"

namespace tarnwick {
namespace {

QString product() { return QStringLiteral("Tarnwick"); }

/// The key rings of the desktops, by the library that knows them all.
class KeychainKeyRing final : public KeyRing {
 public:
  bool isThere() override {
    const QDBusConnection bus = sessionBus();
    return isServed(bus, QStringLiteral("org.freedesktop.secrets")) ||
           isServed(bus, QStringLiteral("org.kde.kwalletd5")) || isServed(bus, QStringLiteral("org.kde.kwalletd6"));
  }

  void read(const std::string& key,
            std::function<void(std::optional<std::string> secret, std::string why)> done) override {
    auto* const job = started<QKeychain::ReadPasswordJob>(key);
    QObject::connect(job, &QKeychain::Job::finished, job, [job, done = std::move(done)] {
      const bool well = job->error() == QKeychain::NoError;
      done(well ? std::optional(job->binaryData().toStdString()) : std::nullopt,
           well ? std::string() : job->errorString().toStdString());
    });
    job->start();
  }

  void write(const std::string& key, const std::string& secret,
             std::function<void(Kept kept, std::string why)> done) override {
    auto* const job = started<QKeychain::WritePasswordJob>(key);
    job->setBinaryData(QByteArray::fromStdString(secret));
    QObject::connect(job, &QKeychain::Job::finished, job, [job, done = std::move(done)] {
      const bool refused = job->error() == QKeychain::AccessDeniedByUser || job->error() == QKeychain::AccessDenied;
      const Kept other = refused ? Kept::refused : Kept::unable;
      done(job->error() == QKeychain::NoError ? Kept::yes : other, job->errorString().toStdString());
    });
    job->start();
  }

  void remove(const std::string& key) override { started<QKeychain::DeletePasswordJob>(key)->start(); }

 private:
  /// A job, which is its own owner and goes when it has answered.
  template <class Job>
  static Job* started(const std::string& key) {
    auto* const job = new Job(product());
    job->setKey(QString::fromStdString(key));
    return job;
  }
};

}  // namespace

std::unique_ptr<KeyRing> makeDesktopKeyRing() { return std::make_unique<KeychainKeyRing>(); }

}  // namespace tarnwick
