#pragma once

#include <curl/curl.h>

#include <chrono>
#include <cstddef>
#include <string>

#include "platform/transfer_control.h"

namespace tarnwick {

/// Why a transfer failed: the number and the words. The words name the thing and are the same each time the same
/// thing fails, since a check's text is compared with that of the next check: no times, byte counts or local ports.
struct TransferFailure {
  TransferFault fault = TransferFault::none;
  std::string cause{};
};

/// A bound of ours that ended a transfer, where libcurl only knows that a callback refused to go on.
enum class BrokenBound { none, page, header, memory, length, protocol };

/// What is known of a transfer that libcurl ended with an error.
struct TransferEnd {
  CURLcode result = CURLE_OK;
  /// libcurl's own words; may be empty.
  std::string detail{};
  /// The address that was asked last: after a redirect the new one.
  std::string url{};
  /// The place that was connected to last, which is the proxy server's where there is one; may be empty.
  std::string peer{};
  /// The operating system's error number of the last failed connect; 0 for none.
  int systemError = 0;
  /// That with which it has refused to give out a socket.
  int refusedSocket = 0;
  /// The status of the last HTTP answer or FTP reply; 0 for none.
  int status = 0;
  /// The address whose server has led to the one that was asked last, or to one that could not be asked; empty when
  /// none has.
  std::string redirectedBy{};
  /// Something had come back over the last connection.
  bool answered = false;
  BrokenBound bound = BrokenBound::none;
  std::chrono::seconds timeout{0};
  std::size_t largestPage = 0;
  int mostRedirects = 0;
  /// The file of trusted certificates; empty for the system's.
  std::string caFile{};
};

TransferFailure failureOf(const TransferEnd& end);

/// The failures that are found before anything is sent.
TransferFailure badAddress(const std::string& text);
TransferFailure unfetchedScheme(const std::string& scheme);
TransferFailure badMethod(const std::string& method);
TransferFailure noMemory();

}  // namespace tarnwick
