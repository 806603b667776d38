// SPDX-License-Identifier: MIT
#include "support/real_mail_server.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "support/wait_until.h"

namespace tarnwick::testing {

class RealMailServer::Impl {
 public:
  explicit Impl(const std::vector<std::string>& options) {
    QStringList arguments{QStringLiteral(TARNWICK_MAIL_SINK), folder.path()};
    for (const std::string& option : options) {
      arguments.append(QString::fromStdString(option));
    }
    process.start(QStringLiteral("/usr/bin/python3"), arguments);
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

RealMailServer::RealMailServer(const std::vector<std::string>& options) : impl_(std::make_unique<Impl>(options)) {}
RealMailServer::~RealMailServer() = default;

bool RealMailServer::available() const { return impl_->port != 0; }
std::int16_t RealMailServer::port16() const { return static_cast<std::int16_t>(impl_->port); }
std::uint16_t RealMailServer::port() const { return impl_->port; }
std::string RealMailServer::read() const { return impl_->read(QStringLiteral("read")); }
std::string RealMailServer::envelope() const { return impl_->read(QStringLiteral("envelope")); }
std::string RealMailServer::content() const { return impl_->read(QStringLiteral("content")); }

}  // namespace tarnwick::testing
