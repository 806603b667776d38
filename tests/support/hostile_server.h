// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <string_view>

#include "support/hostile_behaviour.h"

namespace tarnwick::testing {

/// Where the behaviours of a hostile server are found, and what has come to each of them.
class HostileDoors {
 public:
  /// Opens a port for each behaviour; those that want a certificate which `identities` does not hold stay away.
  HostileDoors(const HostileBehaviours& behaviours, const std::map<std::string, TlsIdentity>& identities);
  HostileDoors(const HostileDoors&) = delete;
  HostileDoors& operator=(const HostileDoors&) = delete;

  /// The address of a behaviour's page.
  std::string urlOf(const std::string& name) const;

  void writeDown(const std::string& name, std::string_view bytes);
  /// Every byte that has come to a behaviour so far.
  std::string received(const std::string& name);

  /// Serves everyone who comes, each on a thread of its own, and answers a line "NAME" on the standard input with the
  /// number of bytes that have come to this behaviour, a line end and those bytes. Ends with the standard input.
  void serve();

 private:
  struct Door {
    const HostileBehaviour& behaviour;
    TlsIdentity identity{};
    int socket = -1;
    std::uint16_t port = 0;
  };

  static void open(Door& door);
  void welcome(const Door& door);
  void visit(const Door& door, int socket);

  std::map<std::string, Door> doors_;
  std::mutex mutex_;
  std::map<std::string, std::string> received_;
};

}  // namespace tarnwick::testing
