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

TransferFailure largeHeader() { return {TransferFault::tooLarge, "The header of the answer is too large."}; }

TransferFailure notUnderstood(const AskedServer& server) {
  const bool web = server.scheme.starts_with("http");
  return {TransferFault::other,
          "The server " + server.place + " did not answer in the language of " + (web ? "HTTP." : "FTP.")};
}

TransferFailure damaged(const AskedServer& server, const std::string& how) {
  return {TransferFault::dropped, "The answer of the server " + server.place + " is damaged: " + how + "."};
}

TransferFailure unclearLength(const AskedServer& server) { return damaged(server, "its length is not clear"); }

// Of what a server sends, libcurl names nothing else a bad argument than a line behind the last chunk without a colon.
TransferFailure badTrailer(const AskedServer& server) { return damaged(server, "bad trailer"); }

TransferFailure broken(const TransferEnd& end, const AskedServer& server) {
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

// A server may take the handshake for done and only then refuse the visitor, for want of a certificate for instance.
bool refusedSecurely(const std::string& detail) {
  return detail.find("SSL routines::") != std::string::npos && detail.find("unexpected eof") == std::string::npos;
}

TransferFailure cutShort(const AskedServer& server, const TransferEnd& end) {
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

TransferFailure redirectedAway(const TransferEnd& end) {
  return {TransferFault::badUrl, "The server " + AskedServer(end.redirectedBy).place +
                                     " redirected to an address of a kind that is not fetched; only http, https, ftp "
                                     "and ftps are."};
}

TransferFailure unsupported(const AskedServer& server, const TransferEnd& end) {
  if (!isFetchedScheme(server.scheme)) {
    return unfetchedScheme(server.scheme);
  }
  if (const std::string scheme = refusedScheme(end.detail); !scheme.empty()) {
    return unfetchedScheme(scheme);
  }
  constexpr int kRedirects = 3;
  return end.status / 100 == kRedirects ? redirectedAway(end) : notUnderstood(server);
}

TransferFailure tooManyRounds(const AskedServer& server, const TransferEnd& end) {
  constexpr int kUnauthorized = 401;
  if (end.status == kUnauthorized) {
    return {TransferFault::other,
            "The server " + server.place + " asked for the user name and the password again and again."};
  }
  return {TransferFault::tooManyRedirects,
          "The server redirected more than " + std::to_string(end.mostRedirects) + " times."};
}

TransferFailure notConfirmed(const AskedServer& server) {
  return {TransferFault::dropped, "The server " + server.place + " did not confirm the end of the transfer."};
}

std::optional<TransferFailure> failureToAnswer(const TransferEnd& end, const AskedServer& server) {
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
    case CURLE_BAD_CONTENT_ENCODING:
    case CURLE_WRITE_ERROR:
      // Not refused by a bound of ours, so it was the decoder that would not take more.
      return TransferFailure{TransferFault::badContentCoding,
                             "The compressed answer of the server " + server.place + " could not be decoded."};
    default:
      return std::nullopt;
  }
}

std::optional<TransferFailure> failureOfFtp(const TransferEnd& end, const AskedServer& server) {
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
  const AskedServer server(end.url);
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

TransferFailure noMemory() { return {TransferFault::shortage, "There is not enough memory for the page."}; }

}  // namespace tarnwick
