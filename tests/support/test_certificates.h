// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "support/http_server.h"

namespace tarnwick::testing {

/// A certificate as a test wants it. No text holds a blank.
struct WantedCertificate {
  std::string name{};                   ///< of its files
  std::string subject{};                ///< "/O=Some/CN=name"
  std::string authority = "authority";  ///< who signs it
  std::chrono::sys_seconds begins{};
  std::chrono::sys_seconds ends{};
  bool signs = false;   ///< it is an authority itself; else it is good for 127.0.0.1 and localhost
  std::string keyOf{};  ///< whose key it has: with the same subject it is another way to what that one has signed
};

/// Certificates made for one test by the `openssl` command, in a folder that goes with this object.
class TestCertificates {
 public:
  TestCertificates();
  ~TestCertificates();
  TestCertificates(const TestCertificates&) = delete;
  TestCertificates& operator=(const TestCertificates&) = delete;

  /// Why there are none: the command is missing or failed; empty when all went well.
  const std::string& problem() const { return problem_; }

  /// The authority that signed all but the self-signed one.
  std::string authorityFile() const;
  /// Good for 127.0.0.1 and localhost.
  TlsIdentity good() const;
  /// Issued for another host.
  TlsIdentity wrongHost() const;
  TlsIdentity expired() const;
  TlsIdentity selfSigned() const;
  /// The two below are made when they are asked for.
  TlsIdentity notYetValid();
  /// Signed by an authority that nobody was told of.
  TlsIdentity ofAStranger();
  /// An authority of its own, under that name of its files, for two days.
  void makeAuthority(const std::string& name);
  void make(const WantedCertificate& wanted);
  /// What a server sends that has the first one: this and the others, in that order.
  TlsIdentity chain(const std::vector<std::string>& names);
  /// A file of authorities to trust.
  std::string authoritiesFile(const std::vector<std::string>& names);
  /// A folder of authorities, with the one of the stranger alone.
  std::string folderOfStrangers();

 private:
  struct Folder;

  bool run(const std::string& arguments);
  bool makeSelfSigned(const std::string& name, const std::string& arguments);
  bool sign(const std::string& name, const std::string& subjectNames, const std::string& period,
            const std::string& authority = "authority");
  std::string joined(const std::vector<std::string>& names);
  TlsIdentity identity(const std::string& name) const;

  std::unique_ptr<Folder> folder_;
  std::string problem_;
  int joined_ = 0;
};

}  // namespace tarnwick::testing
