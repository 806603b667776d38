// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "support/http_server.h"

namespace tarnwick::testing {

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
  /// A folder of authorities, with the one of the stranger alone.
  std::string folderOfStrangers();

 private:
  struct Folder;

  bool run(const std::string& arguments);
  bool makeSelfSigned(const std::string& name, const std::string& arguments);
  bool sign(const std::string& name, const std::string& subjectNames, const std::string& period,
            const std::string& authority = "authority");
  TlsIdentity identity(const std::string& name) const;

  std::unique_ptr<Folder> folder_;
  std::string problem_;
};

}  // namespace tarnwick::testing
