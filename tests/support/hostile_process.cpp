// SPDX-License-Identifier: MIT
#include "support/hostile_process.h"

#include <stdexcept>
#include <QProcess>

#include "platform/address.h"

namespace tarnwick::testing {
namespace {

constexpr int kPatienceMs = 20000;

}  // namespace

struct HostileProcess::Child {
  QProcess process;

  std::string readLine() {
    while (!process.canReadLine()) {
      if (!process.waitForReadyRead(kPatienceMs)) {
        throw std::runtime_error("the hostile server does not answer: " + process.readAllStandardError().toStdString());
      }
    }
    return process.readLine().trimmed().toStdString();
  }

  std::string read(qint64 size) {
    while (process.bytesAvailable() < size) {
      if (!process.waitForReadyRead(kPatienceMs)) {
        throw std::runtime_error("the hostile server broke off in its answer");
      }
    }
    return process.read(size).toStdString();
  }
};

HostileProcess::HostileProcess(const std::string& executable, const std::map<std::string, TlsIdentity>& identities)
    : child_(std::make_unique<Child>()) {
  QStringList arguments;
  for (const auto& [name, identity] : identities) {
    for (const std::string& argument : {name, identity.certificateFile, identity.keyFile}) {
      arguments << QString::fromStdString(argument);
    }
  }
  child_->process.start(QString::fromStdString(executable), arguments);
  for (std::string line = child_->readLine(); line != "ready"; line = child_->readLine()) {
    const auto space = line.find(' ');
    urls_[line.substr(0, space)] = line.substr(space + 1);
  }
}

HostileProcess::~HostileProcess() {
  child_->process.closeWriteChannel();
  if (!child_->process.waitForFinished(kPatienceMs)) {
    child_->process.kill();
    child_->process.waitForFinished(kPatienceMs);
  }
}

std::string HostileProcess::url(const std::string& name) const {
  const auto found = urls_.find(name);
  return found == urls_.end() ? std::string() : found->second;
}

std::string HostileProcess::place(const std::string& name) const {
  const auto address = parseAddress(url(name));
  return address ? address->host + " port " + address->port : std::string();
}

std::string HostileProcess::received(const std::string& name) {
  child_->process.write((name + "\n").c_str());
  return child_->read(std::stoll(child_->readLine()));
}

}  // namespace tarnwick::testing
