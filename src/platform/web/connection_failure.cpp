// SPDX-License-Identifier: MIT
#include "platform/web/connection_failure.h"

#include <cerrno>
#include <cstdlib>
#include <string_view>

namespace tarnwick {
namespace {

// "Failed to connect to 10.0.0.1 port 3128 after 0 ms: ...": libcurl names whom it has really asked. Empty when that is
// no proxy server which the environment names.
std::string unreachedProxy(const std::string& detail) {
  constexpr std::string_view kStart = "Failed to connect to ";
  constexpr std::string_view kPort = " port ";
  const auto port = detail.find(kPort);
  if (!detail.starts_with(kStart) || port == std::string::npos) {
    return {};
  }
  const auto end = detail.find(' ', port + kPort.size());
  const std::string number = detail.substr(port + kPort.size(), end - port - kPort.size());
  const std::string asked = detail.substr(kStart.size(), port - kStart.size()) + ":" + number;
  for (const char* name :
       {"http_proxy", "https_proxy", "HTTPS_PROXY", "ftp_proxy", "FTP_PROXY", "all_proxy", "ALL_PROXY"}) {
    const char* const named = std::getenv(name);
    if (named != nullptr && std::string_view(named).find(asked) != std::string_view::npos) {
      return detail.substr(kStart.size(), end - kStart.size());
    }
  }
  return {};
}

TransferResult notConnected(const TransferEnd& end, const ServerName& server) {
  if (const std::string proxy = unreachedProxy(end.detail); !proxy.empty()) {
    return {TransferFault::refused, "No connection to the proxy server " + quotable(proxy) + " could be made."};
  }
  constexpr int kRedirection = 3;
  if (server.scheme.starts_with("ftp") && end.status != 0 && end.status / 100 != kRedirection) {
    // The server itself has been talked to, and not only one that redirected to it.
    return {TransferFault::refused,
            "The server " + server.place + " gives its files out at a port that cannot be reached."};
  }
  switch (end.systemError) {
    case ECONNRESET:
      return withoutAnswer(server);
    case ECONNREFUSED:
      return {TransferFault::refused, "The connection to " + server.place + " was refused."};
    case ENETUNREACH:
    case EHOSTUNREACH:
    case ENETDOWN:
      return {TransferFault::refused, "The host " + server.host + " cannot be reached from this machine."};
    case ETIMEDOUT:
      return {TransferFault::timeOut, "The host " + server.host + " does not answer."};
    default:
      return {TransferFault::refused, "No connection to " + server.place + " could be made."};
  }
}

TransferResult untrusted(const TransferEnd& end, const ServerName& server) {
  const auto because = [&server](const std::string& reason) {
    return TransferResult{TransferFault::certificate,
                          "The certificate of the server " + server.place + " could not be verified: " + reason + "."};
  };
  if (end.certificateError > 1) {
    const auto colon = end.detail.find(": ");
    return because(colon == std::string::npos ? "it is not valid" : quotable(end.detail.substr(colon + 2)));
  }
  // Windows' own library has one result for both; this is its name for the other.
  if (end.detail.find("UNTRUSTED_ROOT") != std::string::npos) {
    return because("nobody whom this machine trusts has issued it");
  }
  return because(end.result == CURLE_PEER_FAILED_VERIFICATION ? "it was issued for another host" : "it is not valid");
}

TransferResult malformed(const TransferEnd& end) {
  if (end.redirectedBy.empty()) {
    return badAddress(end.url);
  }
  return {TransferFault::badUrl,
          "The server " + ServerName(end.redirectedBy).place + " redirected to an address that is not valid."};
}

}  // namespace

std::optional<TransferResult> resourceShortage(int error) {
  switch (error) {
    case EMFILE:
    case ENFILE:
      return TransferResult{TransferFault::shortage, "This machine has no more file handles for Tarnwick."};
    case ENOBUFS:
    case ENOMEM:
      return TransferResult{TransferFault::shortage, "This machine has not enough memory for another connection."};
    default:
      return std::nullopt;
  }
}

TransferResult withoutAnswer(const ServerName& server) {
  return {TransferFault::dropped, "The server " + server.place + " closed the connection without an answer."};
}

// "error:0A00010B:SSL routines::wrong version number, errno 0": only the last piece says something to a reader.
std::string tlsReason(const std::string& detail) {
  constexpr std::string_view kMark = " routines::";
  const auto mark = detail.rfind(kMark);
  if (mark == std::string::npos) {
    return {};
  }
  const auto start = mark + kMark.size();
  return detail.substr(start, detail.find(',', start) - start);
}

bool isHangUp(const std::string& tlsReason) { return tlsReason.starts_with("unexpected eof"); }

TransferResult unsecured(const TransferEnd& end, const ServerName& server) {
  const std::string reason = tlsReason(end.detail);
  std::string words;
  if (reason.empty() ? end.handshaking || end.systemError == ECONNRESET : isHangUp(reason)) {
    words = ": the server closed the connection";
  } else if (!reason.empty() && !reason.starts_with("reason(")) {  // OpenSSL has no word for this number
    words = ": " + quotable(reason);
  }
  return {TransferFault::secureConnection, "No secure connection to " + server.place + " could be made" + words + "."};
}

std::optional<TransferResult> failureToConnect(const TransferEnd& end, const ServerName& server) {
  switch (end.result) {
    case CURLE_URL_MALFORMAT:
      return malformed(end);
    case CURLE_COULDNT_RESOLVE_HOST:
      return TransferResult{TransferFault::nameLookup, "The name of the host " + server.host + " could not be found."};
    case CURLE_COULDNT_RESOLVE_PROXY:
      return TransferResult{TransferFault::nameLookup, "The name of the proxy server could not be found."};
    case CURLE_COULDNT_CONNECT:
      return notConnected(end, server);
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
      return untrusted(end, server);
    case CURLE_SSL_CACERT_BADFILE:
      return TransferResult{TransferFault::certificate,
                            end.caFile.empty()
                                ? "The system's file of trusted certificates could not be read."
                                : "The file of trusted certificates " + quotable(end.caFile) + " could not be read."};
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_USE_SSL_FAILED:
      return unsecured(end, server);
    default:
      return std::nullopt;
  }
}

}  // namespace tarnwick
