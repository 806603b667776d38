// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick::testing {

/// An FTP server on a free port of 127.0.0.1, as far as fetching a file in passive mode goes. Its members may be set
/// before the first request.
class FtpServer {
 public:
  FtpServer();
  ~FtpServer();
  FtpServer(const FtpServer&) = delete;
  FtpServer& operator=(const FtpServer&) = delete;

  /// The address of `path` ("/name").
  std::string url(const std::string& path) const;

  /// The files by name, without a slash.
  std::map<std::string, std::string> files;
  /// The only user that is let in; an empty name lets everybody in.
  std::string userName;
  std::string password;
  /// Without it the server falls silent after the last byte of a file.
  bool confirmsEnd = true;

  /// The command lines that have arrived.
  const std::vector<std::string>& commands() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarnwick::testing
