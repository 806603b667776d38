// SPDX-License-Identifier: MIT
#include "support/test_certificates.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "platform/clock.h"

namespace tarnwick::testing {
namespace {

constexpr int kPatienceMs = 30000;
constexpr const char* kOwnNames = "IP:127.0.0.1,DNS:localhost";
// What `openssl ca` wants for a start and an end that lie in the past, and in the future.
constexpr const char* kPast = "-startdate 20200101000000Z -enddate 20200201000000Z";
constexpr const char* kFuture = "-startdate 20900101000000Z -enddate 20910101000000Z";
constexpr const char* kPresent = "-days 2";

constexpr const char* kSigningConfiguration =
    "[ca]\ndefault_ca=own\n[own]\ndatabase=index.txt\nserial=serial.txt\nnew_certs_dir=.\ndefault_md=sha256\n"
    "policy=any\nunique_subject=no\ncopy_extensions=none\n[any]\ncommonName=supplied\norganizationName=optional\n";

void writeFile(const QString& path, const QByteArray& text) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) {
    file.write(text);
  }
}

}  // namespace

struct TestCertificates::Folder {
  QTemporaryDir dir;
};

TestCertificates::TestCertificates() : folder_(std::make_unique<Folder>()) {
  const QTemporaryDir& dir = folder_->dir;
  writeFile(dir.filePath(QStringLiteral("ca.cnf")), kSigningConfiguration);
  writeFile(dir.filePath(QStringLiteral("index.txt")), {});
  writeFile(dir.filePath(QStringLiteral("serial.txt")), "01\n");
  static_cast<void>(makeSelfSigned("authority", "-subj /CN=Test-Authority") &&
                    makeSelfSigned("self", std::string("-subj /CN=localhost -addext subjectAltName=") + kOwnNames) &&
                    sign("good", kOwnNames, kPresent) && sign("other", "DNS:other.example", kPresent) &&
                    sign("expired", kOwnNames, kPast));
}

TestCertificates::~TestCertificates() = default;

bool TestCertificates::run(const std::string& arguments) {
  QProcess process;
  process.setWorkingDirectory(folder_->dir.path());
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(QStringLiteral("openssl"), QString::fromStdString(arguments).split(QLatin1Char(' ')));
  if (!process.waitForStarted()) {
    problem_ = "the openssl command is not installed";
  } else if (!process.waitForFinished(kPatienceMs) || process.exitCode() != 0) {
    problem_ = "openssl " + arguments + ": " + process.readAll().toStdString();
  }
  return problem_.empty();
}

bool TestCertificates::makeSelfSigned(const std::string& name, const std::string& arguments) {
  return run("req -x509 -newkey rsa:2048 -nodes -sha256 -days 2 " + arguments + " -keyout " + name + ".key -out " +
             name + ".crt");
}

bool TestCertificates::sign(const std::string& name, const std::string& subjectNames, const std::string& period,
                            const std::string& authority) {
  writeFile(folder_->dir.filePath(QString::fromStdString(name + ".ext")),
            QByteArray::fromStdString("subjectAltName=" + subjectNames + "\n"));
  return run("req -newkey rsa:2048 -nodes -sha256 -subj /CN=" + name + " -keyout " + name + ".key -out " + name +
             ".csr") &&
         run("ca -batch -notext -config ca.cnf -cert " + authority + ".crt -keyfile " + authority + ".key -extfile " +
             name + ".ext -in " + name + ".csr -out " + name + ".crt " + period);
}

void TestCertificates::makeAuthority(const std::string& name) {
  if (problem_.empty()) {
    makeSelfSigned(name, "-subj /CN=" + name);
  }
}

void TestCertificates::make(const WantedCertificate& wanted) {
  if (!problem_.empty()) {
    return;
  }
  const auto stamp = [](std::chrono::sys_seconds time) {
    std::string text = dateTimeText(LocalTime(time.time_since_epoch()));
    std::erase_if(text, [](char c) { return c < '0' || c > '9'; });
    return text + "Z";
  };
  const QDir dir(folder_->dir.path());
  const auto file = [&](const std::string& name) { return dir.filePath(QString::fromStdString(name)); };
  writeFile(file(wanted.name + ".ext"),
            wanted.signs ? QByteArray("basicConstraints=critical,CA:TRUE\n")
                         : QByteArray::fromStdString("subjectAltName=" + std::string(kOwnNames) + "\n"));
  if (!wanted.keyOf.empty()) {
    QFile::copy(file(wanted.keyOf + ".key"), file(wanted.name + ".key"));
  }
  const std::string key = wanted.keyOf.empty() ? "-newkey rsa:2048 -nodes -keyout " : "-key ";
  static_cast<void>(
      run("req -new -sha256 -subj " + wanted.subject + " " + key + wanted.name + ".key -out " + wanted.name + ".csr") &&
      run("ca -batch -notext -config ca.cnf -cert " + wanted.authority + ".crt -keyfile " + wanted.authority +
          ".key -extfile " + wanted.name + ".ext -in " + wanted.name + ".csr -out " + wanted.name + ".crt -startdate " +
          stamp(wanted.begins) + " -enddate " + stamp(wanted.ends)));
}

std::string TestCertificates::joined(const std::vector<std::string>& names) {
  QByteArray all;
  for (const std::string& name : names) {
    QFile file(QString::fromStdString(identity(name).certificateFile));
    if (file.open(QIODevice::ReadOnly)) {
      all += file.readAll();
    }
  }
  const QString path = folder_->dir.filePath(QStringLiteral("joined%1.pem").arg(++joined_));
  writeFile(path, all);
  return path.toStdString();
}

TlsIdentity TestCertificates::chain(const std::vector<std::string>& names) {
  return {.certificateFile = joined(names), .keyFile = identity(names.front()).keyFile};
}

std::string TestCertificates::authoritiesFile(const std::vector<std::string>& names) { return joined(names); }

TlsIdentity TestCertificates::identity(const std::string& name) const {
  const std::string start = folder_->dir.path().toStdString() + "/" + name;
  return {.certificateFile = start + ".crt", .keyFile = start + ".key"};
}

std::string TestCertificates::authorityFile() const { return identity("authority").certificateFile; }
TlsIdentity TestCertificates::good() const { return identity("good"); }
TlsIdentity TestCertificates::wrongHost() const { return identity("other"); }
TlsIdentity TestCertificates::expired() const { return identity("expired"); }
TlsIdentity TestCertificates::selfSigned() const { return identity("self"); }

TlsIdentity TestCertificates::notYetValid() {
  if (problem_.empty()) {
    sign("future", kOwnNames, kFuture);
  }
  return identity("future");
}

TlsIdentity TestCertificates::ofAStranger() {
  if (problem_.empty() && makeSelfSigned("stranger", "-subj /CN=Strange-Authority")) {
    sign("strange", kOwnNames, kPresent, "stranger");
  }
  return identity("strange");
}

std::string TestCertificates::folderOfStrangers() {
  const QDir dir(folder_->dir.path());
  dir.mkdir(QStringLiteral("trusted"));
  QFile::copy(dir.filePath(QStringLiteral("stranger.crt")), dir.filePath(QStringLiteral("trusted/stranger.crt")));
  run("rehash trusted");
  return dir.filePath(QStringLiteral("trusted")).toStdString();
}

}  // namespace tarnwick::testing
