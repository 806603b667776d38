// SPDX-License-Identifier: MIT
#include "support/real_mail_server.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "support/wait_until.h"

namespace tarnwick::testing {

class RealMailServer::Impl {
 public:
  Impl() {
    process.start(QStringLiteral("/usr/bin/python3"), {QStringLiteral(TARNWICK_MAIL_SINK), folder.path()});
    waitUntil([this] { return process.canReadLine() || process.state() == QProcess::NotRunning; });
    port = process.readLine().trimmed().toUShort();
  }
  ~Impl() {
    process.closeWriteChannel();
    if (!process.waitForFinished(5000)) {
      process.kill();
      process.waitForFinished();
    }
  }

  std::string read(const QString& name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
  }

  QTemporaryDir folder;
  QProcess process;
  std::uint16_t port = 0;
};

RealMailServer::RealMailServer() : impl_(std::make_unique<Impl>()) {}
RealMailServer::~RealMailServer() = default;

bool RealMailServer::available() const { return impl_->port != 0; }
std::int16_t RealMailServer::port16() const { return static_cast<std::int16_t>(impl_->port); }
std::string RealMailServer::envelope() const { return impl_->read(QStringLiteral("envelope")); }
std::string RealMailServer::content() const { return impl_->read(QStringLiteral("content")); }

}  // namespace tarnwick::testing
