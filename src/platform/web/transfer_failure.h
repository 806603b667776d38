// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <chrono>
#include <cstddef>
#include <string>

#include "platform/transfer_control.h"

namespace tarnwick {

/// Why we ended a transfer ourselves, where libcurl only knows that a callback refused to go on.
enum class AbortReason { none, page, header, memory, length, protocol, coding, cutCoding };

/// What is known of a transfer that libcurl ended with an error.
struct TransferEnd {
  CURLcode result = CURLE_OK;
  /// libcurl's own words; empty when it has none, as for a transfer that the event loop has ended.
  std::string detail{};
  /// The address that was asked last: after a redirect the new one.
  std::string url{};
  /// The place that was connected to last, which is the proxy server's where there is one; may be empty.
  std::string peer{};
  /// The operating system's error number of the last failed connect; 0 for none.
  int systemError = 0;
  /// That with which it has refused to give out a socket.
  int refusedSocket = 0;
  /// OpenSSL's number for what is wrong with the certificate's chain; 0 and 1 name nothing.
  int certificateError = 0;
  /// The status of the last HTTP answer or FTP reply; 0 for none.
  int status = 0;
  /// The address whose server has led to the one that was asked last, or to one that could not be asked; empty when
  /// none has.
  std::string redirectedBy{};
  /// Its handshake had begun, which only a TLS library tells that also names its reasons.
  bool handshaking = false;
  /// The last connection had got as far as taking a request: through the proxy server, the handshake, the log-in.
  bool ready = true;
  /// Something had come back over the last connection.
  bool answered = false;
  /// Its page came in chunks.
  bool chunked = false;
  AbortReason aborted = AbortReason::none;
  std::chrono::seconds timeout{0};
  std::size_t largestPage = 0;
  int maxRedirects = 0;
  /// The file of trusted certificates; empty for the system's.
  std::string caFile{};
};

/// The fault and the words for it, which name the thing.
TransferResult failureOf(const TransferEnd& end);

/// The failures that are found before anything is sent.
TransferResult badAddress(const std::string& text);
TransferResult unfetchedScheme(const std::string& scheme);
TransferResult badMethod(const std::string& method);
TransferResult badCredentials();
TransferResult noMemory();

}  // namespace tarnwick
