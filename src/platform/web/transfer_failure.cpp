// SPDX-License-Identifier: MIT
#include "platform/web/transfer_failure.h"

#include <optional>
#include <string_view>

#include "platform/address.h"
#include "platform/web/connection_failure.h"

namespace tarnwick {
namespace {

std::string sizeText(std::size_t bytes) {
  constexpr std::size_t kKib = 1024;
  if (bytes % (kKib * kKib) == 0) {
    return std::to_string(bytes / (kKib * kKib)) + " MiB";
  }
  return bytes % kKib == 0 ? std::to_string(bytes / kKib) + " KiB" : std::to_string(bytes) + " bytes";
}

std::string secondsText(std::chrono::seconds time) {
  return std::to_string(time.count()) + (time.count() == 1 ? " second" : " seconds");
}

TransferResult largeHeader() { return {TransferFault::tooLarge, "The header of the answer is too large."}; }

TransferResult notUnderstood(const ServerName& server) {
  const bool web = server.scheme.starts_with("http");
  return {TransferFault::other,
          "The server " + server.place + " did not answer in the language of " + (web ? "HTTP." : "FTP.")};
}

TransferResult damaged(const ServerName& server, const std::string& how) {
  return {TransferFault::dropped, "The answer of the server " + server.place + " is damaged: " + how + "."};
}

TransferResult unclearLength(const ServerName& server) { return damaged(server, "its length is not clear"); }

// Of what a server sends, libcurl names nothing else a bad argument than a line behind the last chunk without a colon.
TransferResult badTrailer(const ServerName& server) { return damaged(server, "bad trailer"); }

TransferResult undecodable(const ServerName& server) {
  return {TransferFault::badContentCoding,
          "The compressed answer of the server " + server.place + " could not be decoded."};
}

TransferResult incomplete(const ServerName& server) {
  return {TransferFault::badContentCoding, "The compressed answer of the server " + server.place + " is incomplete."};
}

TransferResult abortedBecause(const TransferEnd& end, const ServerName& server) {
  switch (end.aborted) {
    case AbortReason::page:
      return {TransferFault::tooLarge, "The page is larger than " + sizeText(end.largestPage) + "."};
    case AbortReason::header:
      return largeHeader();
    case AbortReason::length:
      return unclearLength(server);
    case AbortReason::protocol:
      return notUnderstood(server);
    case AbortReason::coding:
      return undecodable(server);
    case AbortReason::cutCoding:
      return incomplete(server);
    case AbortReason::memory:
    case AbortReason::none:
      break;
  }
  return noMemory();
}

TransferResult cutShort(const ServerName& server, const TransferEnd& end) {
  const std::string reason = tlsReason(end.detail);
  // Neither the system nor the TLS library has broken it off, but libcurl, which could not read the next chunk.
  if (end.result == CURLE_RECV_ERROR && end.chunked && end.systemError == 0 && reason.empty()) {
    return damaged(server, "bad chunk");
  }
  // What is secured speaks of its handshake. Before that only a proxy server is asked, for a way through.
  if (server.scheme == "https" && !end.ready) {
    return {TransferFault::refused,
            "The proxy server " + quotable(end.peer) + " made no connection to " + server.place + "."};
  }
  if (!end.answered) {
    // A server may take the handshake for done and only then refuse the visitor, for want of a certificate for
    // instance.
    return reason.empty() || isHangUp(reason) ? withoutAnswer(server) : unsecured(end, server);
  }
  return {TransferFault::dropped, "The server " + server.place + " broke the connection off during its answer."};
}

TransferResult redirectedAway(const TransferEnd& end) {
  return {TransferFault::badUrl, "The server " + ServerName(end.redirectedBy).place +
                                     " redirected to an address of a kind that is not fetched; only http, https, ftp "
                                     "and ftps are."};
}

TransferResult unsupported(const ServerName& server, const TransferEnd& end) {
  if (!isFetchedScheme(server.scheme)) {
    return unfetchedScheme(server.scheme);
  }
  constexpr int kRedirects = 3;
  return end.status / 100 == kRedirects ? redirectedAway(end) : notUnderstood(server);
}

TransferResult tooManyRounds(const ServerName& server, const TransferEnd& end) {
  constexpr int kUnauthorized = 401;
  if (end.status == kUnauthorized) {
    return {TransferFault::other,
            "The server " + server.place + " asked for the user name and the password again and again."};
  }
  return {TransferFault::tooManyRedirects,
          "The server redirected more than " + std::to_string(end.maxRedirects) + " times."};
}

TransferResult notConfirmed(const ServerName& server) {
  return {TransferFault::dropped, "The server " + server.place + " did not confirm the end of the transfer."};
}

TransferResult timedOut(const TransferEnd& end, const ServerName& server) {
  // Replies of FTP (RFC 959, section 4.2.1).
  constexpr int kTransferStarting = 125;
  constexpr int kOpeningConnection = 150;
  constexpr int kServiceNotAvailable = 421;
  if (server.scheme.starts_with("ftp")) {
    // The event loop bounds the transfer itself; libcurl only the wait for the reply behind it.
    if (!end.detail.empty() && (end.status == kTransferStarting || end.status == kOpeningConnection)) {
      return notConfirmed(server);
    }
    if (end.status == kServiceNotAvailable) {  // for libcurl a time-out of the server's
      return {TransferFault::dropped, "The server " + server.place + " is not available for now."};
    }
  }
  return {TransferFault::timeOut, std::string(kTookTooLong) + secondsText(end.timeout) + "."};
}

std::optional<TransferResult> failureToAnswer(const TransferEnd& end, const ServerName& server) {
  switch (end.result) {
    case CURLE_UNSUPPORTED_PROTOCOL:
      return unsupported(server, end);
    case CURLE_WEIRD_SERVER_REPLY:
      return end.detail.find("Content-Length") == std::string::npos ? notUnderstood(server) : unclearLength(server);
    case CURLE_FTP_WEIRD_PASS_REPLY:
    case CURLE_FTP_WEIRD_PASV_REPLY:
    case CURLE_FTP_WEIRD_227_FORMAT:
      return notUnderstood(server);
    case CURLE_BAD_FUNCTION_ARGUMENT:
      return badTrailer(server);
    case CURLE_GOT_NOTHING:
      return withoutAnswer(server);
    case CURLE_SEND_ERROR:  // whether the request or its answer meets a server that hangs up is a matter of chance
    case CURLE_RECV_ERROR:
    case CURLE_PARTIAL_FILE:
      return cutShort(server, end);
    case CURLE_ABORTED_BY_CALLBACK:
      return notConfirmed(server);
    case CURLE_TOO_MANY_REDIRECTS:
      return tooManyRounds(server, end);
    case CURLE_BAD_CONTENT_ENCODING:  // too many of them are refused with the header
      return undecodable(server);
    default:
      return std::nullopt;
  }
}

std::optional<TransferResult> failureOfFtp(const TransferEnd& end, const ServerName& server) {
  switch (end.result) {
    case CURLE_LOGIN_DENIED:
      if (server.scheme.starts_with("http")) {
        return TransferResult{TransferFault::badUrl, "The server " + ServerName(end.redirectedBy).place +
                                                         " redirected to an address that holds a name and a password."};
      }
      return TransferResult{TransferFault::other,
                            "The server " + server.place + " refused the user name or the password."};
    case CURLE_REMOTE_FILE_NOT_FOUND:
    case CURLE_REMOTE_ACCESS_DENIED:
    case CURLE_FTP_COULDNT_RETR_FILE:
      return TransferResult{TransferFault::other, "The server " + server.place + " does not give the file out."};
    default:
      return std::nullopt;
  }
}

}  // namespace

TransferResult failureOf(const TransferEnd& end) {
  const ServerName server(end.url);
  if (end.aborted != AbortReason::none) {
    return abortedBecause(end, server);
  }
  if (end.result == CURLE_OPERATION_TIMEDOUT) {
    return timedOut(end, server);
  }
  for (const int error : {end.refusedSocket, end.systemError}) {
    if (auto shortage = resourceShortage(error)) {
      return *shortage;
    }
  }
  if (end.result == CURLE_OUT_OF_MEMORY) {
    return noMemory();
  }
  if (auto failure = failureToConnect(end, server)) {
    return *failure;
  }
  if (auto failure = failureToAnswer(end, server)) {
    return *failure;
  }
  if (auto failure = failureOfFtp(end, server)) {
    return *failure;
  }
  return {TransferFault::other,
          "The transfer from " + server.place + " failed: " + curl_easy_strerror(end.result) + "."};
}

TransferResult badAddress(const std::string& text) {
  return text.empty() ? TransferResult{TransferFault::badUrl, "The address is empty."}
                      : TransferResult{TransferFault::badUrl, "The address " + quotable(text) + " is not valid."};
}

TransferResult unfetchedScheme(const std::string& scheme) {
  return {TransferFault::badUrl,
          "Addresses of the kind " + quotable(scheme) + " are not fetched, only http, https, ftp and ftps."};
}

TransferResult badMethod(const std::string& method) {
  return {TransferFault::badMethod, "The method " + quotable(method) + " is not valid."};
}

TransferResult badCredentials() {
  return {TransferFault::other, "The user name or the password holds a line end, and a file server takes none."};
}

TransferResult noMemory() { return {TransferFault::shortage, "There is not enough memory for the page."}; }

}  // namespace tarnwick
