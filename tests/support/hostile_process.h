// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <memory>
#include <string>

#include "support/http_server.h"

namespace tarnwick::testing {

/// A hostile server in a process of its own, so that what it opens and allocates is not counted as the program's.
class HostileProcess {
 public:
  /// Starts `executable`; `identities` are the certificates it may show, by name. Raises std::runtime_error when it
  /// does not come up.
  HostileProcess(const std::string& executable, const std::map<std::string, TlsIdentity>& identities);
  ~HostileProcess();
  HostileProcess(const HostileProcess&) = delete;
  HostileProcess& operator=(const HostileProcess&) = delete;

  /// The address of a behaviour; empty when the server does not offer it.
  std::string url(const std::string& name) const;
  /// Host and port of a behaviour in the words of the program: "127.0.0.1 port 4711".
  std::string place(const std::string& name) const;
  /// Every byte that has come to a behaviour so far.
  std::string received(const std::string& name);

 private:
  struct Child;

  std::unique_ptr<Child> child_;
  std::map<std::string, std::string> urls_;
};

}  // namespace tarnwick::testing
