// SPDX-License-Identifier: MIT
#include "support/hostile_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <iostream>
#include <system_error>
#include <thread>
#include <vector>

namespace tarnwick::testing {
namespace {

constexpr int kQueue = 64;
/// What is kept of the bytes that come to a behaviour.
constexpr std::size_t kMostWrittenDown = 1'000'000;

}  // namespace

HostileDoors::HostileDoors(const HostileBehaviours& behaviours, const std::map<std::string, TlsIdentity>& identities) {
  for (const HostileBehaviour& behaviour : behaviours) {
    const auto identity = identities.find(behaviour.identity);
    if (!behaviour.identity.empty() && identity == identities.end()) {
      continue;
    }
    Door door{.behaviour = behaviour, .identity = behaviour.identity.empty() ? TlsIdentity{} : identity->second};
    open(door);
    if (!doors_.emplace(behaviour.name, door).second) {
      throw std::runtime_error("two behaviours are named " + behaviour.name);
    }
  }
}

void HostileDoors::open(Door& door) {
  const HostileDoor kind = door.behaviour.door;
  sockaddr_in address{};
  address.sin_family = AF_INET;
  socklen_t size = sizeof address;
  door.socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (::inet_pton(AF_INET, door.behaviour.host.c_str(), &address.sin_addr) != 1 ||
      ::bind(door.socket, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
      ::getsockname(door.socket, reinterpret_cast<sockaddr*>(&address), &size) != 0 ||
      (kind != HostileDoor::closed && ::listen(door.socket, kind == HostileDoor::full ? 0 : kQueue) != 0)) {
    throw std::system_error(errno, std::generic_category(), "a port on " + door.behaviour.host);
  }
  door.port = ntohs(address.sin_port);
  if (kind == HostileDoor::full) {
    // One connection fills a queue of this length; a few more make sure.
    for (int guest = 0; guest < 4; ++guest) {
      const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
      static_cast<void>(::connect(socket, reinterpret_cast<const sockaddr*>(&address), size));
    }
  }
}

std::string HostileDoors::urlOf(const std::string& name) const {
  const auto found = doors_.find(name);
  if (found == doors_.end()) {
    return {};
  }
  const Door& door = found->second;
  return door.behaviour.scheme + "://" + door.behaviour.host + ":" + std::to_string(door.port) + door.behaviour.path;
}

void HostileDoors::writeDown(const std::string& name, std::string_view bytes) {
  const std::lock_guard lock(mutex_);
  std::string& known = received_[name];
  known.append(bytes.substr(0, kMostWrittenDown - std::min(known.size(), kMostWrittenDown)));
}

std::string HostileDoors::received(const std::string& name) {
  const std::lock_guard lock(mutex_);
  return received_[name];
}

void HostileDoors::serve() {
  for (const auto& [name, door] : doors_) {
    if (door.behaviour.door == HostileDoor::plain) {
      std::thread([this, &served = door] { welcome(served); }).detach();
    }
    std::cout << name << " " << urlOf(name) << "\n";
  }
  std::cout << "ready" << std::endl;
  for (std::string name; std::getline(std::cin, name);) {
    const std::string text = received(name);
    std::cout << text.size() << "\n" << text << std::flush;
  }
}

void HostileDoors::welcome(const Door& door) {
  for (;;) {
    const int socket = ::accept(door.socket, nullptr, nullptr);
    if (socket >= 0) {
      std::thread([this, &door, socket] { visit(door, socket); }).detach();
    }
  }
}

void HostileDoors::visit(const Door& door, int socket) {
  try {
    HostileVisit visit(socket, door.behaviour.name, *this);
    if (!door.behaviour.identity.empty()) {
      visit.secure(door.identity);
    }
    door.behaviour.serve(visit);
  } catch (const VisitorGone&) {
    // Most of those who are treated badly leave early.
  }
}

}  // namespace tarnwick::testing
