// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// `text` as it goes into a sentence of a report or a mail: one line of a length that can be read.
std::string quotable(std::string_view text);

/// The server that an address leads to, as the sentences name it.
struct ServerName {
  explicit ServerName(const std::string& url);

  /// In small letters; empty when the address cannot be understood.
  std::string scheme;
  std::string host;
  /// The host, and the port where the address has one.
  std::string place;
};

}  // namespace tarnwick
