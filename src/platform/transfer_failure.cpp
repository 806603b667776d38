#include "platform/transfer_failure.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>

#include "platform/address.h"

namespace tarnwick {
namespace {

// What goes into a sentence of a report or a mail: one line of a length that can be read.
std::string quotable(std::string_view text) {
  constexpr std::size_t kLongest = 200;
  std::string result(text.substr(0, kLongest));
  std::ranges::replace_if(
      result, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
  return text.size() > kLongest ? result + "..." : result;
}

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

/// The server that was asked last, as the sentences name it.
struct Server {
  explicit Server(const std::string& url) {
    if (const auto address = parseAddress(url)) {
      scheme = address->scheme;
      host = quotable(address->host);
      place = address->port.empty() ? host : host + " port " + address->port;
    } else {
      host = place = "the server";
    }
  }

  std::string scheme;
  std::string host;
  std::string place;
};

TransferFailure largeHeader() { return {TransferFault::tooLarge, "The header of the answer is too large."}; }

TransferFailure notUnderstood(const Server& server) {
  const bool web = server.scheme.starts_with("http");
  return {TransferFault::other,
          "The server " + server.place + " did not answer in the language of " + (web ? "HTTP." : "FTP.")};
}

TransferFailure damaged(const Server& server, const std::string& how) {
  return {TransferFault::dropped, "The answer of the server " + server.place + " is damaged: " + how + "."};
}

TransferFailure unclearLength(const Server& server) { return damaged(server, "its length is not clear"); }

// Of what a server sends, libcurl names nothing else a bad argument than a line behind the last chunk without a colon.
TransferFailure badTrailer(const Server& server) { return damaged(server, "bad trailer"); }

TransferFailure withoutAnswer(const Server& server) {
  return {TransferFault::dropped, "The server " + server.place + " closed the connection without an answer."};
}

TransferFailure broken(const TransferEnd& end, const Server& server) {
  switch (end.bound) {
    case BrokenBound::page:
      return {TransferFault::tooLarge, "The page is larger than " + sizeText(end.largestPage) + "."};
    case BrokenBound::header:
      return largeHeader();
    case BrokenBound::length:
      return unclearLength(server);
    case BrokenBound::protocol:
      return notUnderstood(server);
    case BrokenBound::memory:
    case BrokenBound::none:
      break;
  }
  return noMemory();
}

// What this machine lacks is no fault of any server.
std::optional<TransferFailure> lackOfThisMachine(int error) {
  switch (error) {
    case EMFILE:
    case ENFILE:
      return TransferFailure{TransferFault::other, "This machine has no more file handles for Tarnwick."};
    case ENOBUFS:
    case ENOMEM:
      return TransferFailure{TransferFault::other, "This machine has not enough memory for another connection."};
    default:
      return std::nullopt;
  }
}

TransferFailure notConnected(const TransferEnd& end, const Server& server) {
  if (server.scheme.starts_with("ftp") && end.status != 0) {
    // The server itself has been talked to.
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

TransferFailure untrusted(const Server& server, const std::string& detail) {
  const std::string start = "The certificate of the server " + server.place + " could not be verified: ";
  constexpr std::string_view kProblem = "SSL certificate problem: ";
  const auto problem = detail.find(kProblem);
  if (problem != std::string::npos) {
    return {TransferFault::certificate, start + quotable(detail.substr(problem + kProblem.size())) + "."};
  }
  // The first two in the words of OpenSSL's side of libcurl, the others in those of Windows' own.
  for (const std::string_view otherHost :
       {"subject name", "subjectAltName", "check failed", "match connection hostname"}) {
    if (detail.find(otherHost) != std::string::npos) {
      return {TransferFault::certificate, start + "it was issued for another host."};
    }
  }
  if (detail.find("UNTRUSTED_ROOT") != std::string::npos) {
    return {TransferFault::certificate, start + "nobody whom this machine trusts has issued it."};
  }
  return {TransferFault::certificate, start + "it is not valid."};
}

TransferFailure unsecured(const Server& server, const std::string& detail) {
  const std::string start = "No secure connection to " + server.place + " could be made";
  // What OpenSSL and the system say of a server that hangs up instead of going on with the handshake.
  for (const std::string_view hungUp : {"SSL_ERROR_SYSCALL", "reset by peer", "unexpected eof"}) {
    if (detail.find(hungUp) != std::string::npos) {
      return {TransferFault::secureConnection, start + ": the server closed the connection."};
    }
  }
  // "error:0A00010B:SSL routines::wrong version number": only the last piece says something to a reader.
  const auto last = detail.rfind("::");
  const std::string reason =
      last == std::string::npos ? "" : detail.substr(last + 2, detail.find(',', last) - last - 2);
  const bool isWord = !reason.empty() && !reason.starts_with("reason(");  // it has no word for this number
  return {TransferFault::secureConnection, start + (isWord ? ": " + quotable(reason) + "." : ".")};
}

// A server may take the handshake for done and only then refuse the visitor, for want of a certificate for instance.
bool refusedSecurely(const std::string& detail) {
  return detail.find("SSL routines::") != std::string::npos && detail.find("unexpected eof") == std::string::npos;
}

TransferFailure cutShort(const Server& server, const TransferEnd& end) {
  if (end.detail.find("chunked-encoding") != std::string::npos) {
    return damaged(server, "bad chunk");
  }
  // The proxy server was asked for a way through, and has hung up or refused.
  if (end.detail.find("CONNECT ") != std::string::npos) {
    return {TransferFault::refused,
            "The proxy server " + quotable(end.peer) + " made no connection to " + server.place + "."};
  }
  if (!end.answered) {
    return refusedSecurely(end.detail) ? unsecured(server, end.detail) : withoutAnswer(server);
  }
  return {TransferFault::dropped, "The server " + server.place + " broke the connection off during its answer."};
}

// libcurl's words for an address that it was led to: 'Protocol "javascript" not supported or disabled in libcurl'.
std::string refusedScheme(const std::string& detail) {
  constexpr std::string_view kStart = "Protocol \"";
  if (!detail.starts_with(kStart)) {
    return {};
  }
  return detail.substr(kStart.size(), detail.find('"', kStart.size()) - kStart.size());
}

TransferFailure redirectedAway(const Server& server) {
  return {TransferFault::badUrl, "The server " + server.place +
                                     " redirected to an address of a kind that is not fetched; only http, https, ftp "
                                     "and ftps are."};
}

TransferFailure unsupported(const Server& server, const TransferEnd& end) {
  if (!isFetchedScheme(server.scheme)) {
    return unfetchedScheme(server.scheme);
  }
  if (const std::string scheme = refusedScheme(end.detail); !scheme.empty()) {
    return unfetchedScheme(scheme);
  }
  constexpr int kRedirects = 3;
  return end.status / 100 == kRedirects ? redirectedAway(server) : notUnderstood(server);
}

TransferFailure malformed(const Server& server, const TransferEnd& end) {
  if (!end.redirected) {
    return badAddress(end.url);
  }
  // libcurl has gone on to the new address already when that is one it can take apart.
  const std::string redirecting = parseAddress(end.url) ? "The server " + server.place : "The server";
  return {TransferFault::badUrl, redirecting + " redirected to an address that is not valid."};
}

TransferFailure tooManyRounds(const Server& server, const TransferEnd& end) {
  constexpr int kUnauthorized = 401;
  if (end.status == kUnauthorized) {
    return {TransferFault::other,
            "The server " + server.place + " asked for the user name and the password again and again."};
  }
  return {TransferFault::tooManyRedirects,
          "The server redirected more than " + std::to_string(end.mostRedirects) + " times."};
}

std::optional<TransferFailure> failureToConnect(const TransferEnd& end, const Server& server) {
  switch (end.result) {
    case CURLE_URL_MALFORMAT:
      return malformed(server, end);
    case CURLE_COULDNT_RESOLVE_HOST:
      return TransferFailure{TransferFault::nameLookup, "The name of the host " + server.host + " could not be found."};
    case CURLE_COULDNT_RESOLVE_PROXY:
      return TransferFailure{TransferFault::nameLookup, "The name of the proxy server could not be found."};
    case CURLE_COULDNT_CONNECT:
      return notConnected(end, server);
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
      return untrusted(server, end.detail);
    case CURLE_SSL_CACERT_BADFILE:
      return TransferFailure{TransferFault::certificate,
                             end.caFile.empty()
                                 ? "The system's file of trusted certificates could not be read."
                                 : "The file of trusted certificates " + quotable(end.caFile) + " could not be read."};
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_USE_SSL_FAILED:
      return unsecured(server, end.detail);
    default:
      return std::nullopt;
  }
}

TransferFailure notConfirmed(const Server& server) {
  return {TransferFault::dropped, "The server " + server.place + " did not confirm the end of the transfer."};
}

std::optional<TransferFailure> failureToAnswer(const TransferEnd& end, const Server& server) {
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
    case CURLE_SEND_ERROR:
      return TransferFailure{TransferFault::dropped, "The request could not be sent to " + server.place + "."};
    case CURLE_RECV_ERROR:
    case CURLE_PARTIAL_FILE:
      return cutShort(server, end);
    case CURLE_ABORTED_BY_CALLBACK:
      return notConfirmed(server);
    case CURLE_TOO_MANY_REDIRECTS:
      return tooManyRounds(server, end);
    case CURLE_BAD_CONTENT_ENCODING:
    case CURLE_WRITE_ERROR:
      // Not refused by a bound of ours, so it was the decoder that would not take more.
      return TransferFailure{TransferFault::badContentCoding,
                             "The compressed answer of the server " + server.place + " could not be decoded."};
    default:
      return std::nullopt;
  }
}

std::optional<TransferFailure> failureOfFtp(const TransferEnd& end, const Server& server) {
  switch (end.result) {
    case CURLE_LOGIN_DENIED:
      return TransferFailure{TransferFault::other,
                             "The server " + server.place + " refused the user name or the password."};
    case CURLE_REMOTE_FILE_NOT_FOUND:
    case CURLE_REMOTE_ACCESS_DENIED:
    case CURLE_FTP_COULDNT_RETR_FILE:
      return TransferFailure{TransferFault::other, "The server " + server.place + " does not give the file out."};
    default:
      return std::nullopt;
  }
}

}  // namespace

TransferFailure failureOf(const TransferEnd& end) {
  const Server server(end.url);
  if (end.bound != BrokenBound::none) {
    return broken(end, server);
  }
  if (end.result == CURLE_OPERATION_TIMEDOUT) {
    if (end.detail.find("FTP response timeout") != std::string::npos) {
      return notConfirmed(server);
    }
    constexpr int kServiceNotAvailable = 421;  // RFC 959, section 4.2.1; for libcurl a time-out of the server's
    if (server.scheme.starts_with("ftp") && end.status == kServiceNotAvailable) {
      return {TransferFault::dropped, "The server " + server.place + " is not available for now."};
    }
    return {TransferFault::timeOut, "The request took longer than " + secondsText(end.timeout) + "."};
  }
  // libcurl has bounds of its own beside ours.
  if (end.detail.find("response header") != std::string::npos || end.detail.find("big header") != std::string::npos) {
    return largeHeader();
  }
  for (const int error : {end.refusedSocket, end.systemError}) {
    if (auto lack = lackOfThisMachine(error)) {
      return *lack;
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

TransferFailure badAddress(const std::string& text) {
  return text.empty() ? TransferFailure{TransferFault::badUrl, "The address is empty."}
                      : TransferFailure{TransferFault::badUrl, "The address " + quotable(text) + " is not valid."};
}

TransferFailure unfetchedScheme(const std::string& scheme) {
  return {TransferFault::badUrl,
          "Addresses of the kind " + quotable(scheme) + " are not fetched, only http, https, ftp and ftps."};
}

TransferFailure badMethod(const std::string& method) {
  return {TransferFault::badMethod, "The method " + quotable(method) + " is not valid."};
}

TransferFailure noMemory() { return {TransferFault::other, "There is not enough memory for the page."}; }

}  // namespace tarnwick
