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

TransferFailure broken(BrokenBound bound, const TransferEnd& end) {
  switch (bound) {
    case BrokenBound::page:
      return {TransferFault::tooLarge, "The page is larger than " + sizeText(end.largestPage) + "."};
    case BrokenBound::header:
      return largeHeader();
    case BrokenBound::memory:
    case BrokenBound::none:
      break;
  }
  return noMemory();
}

TransferFailure notConnected(const Server& server, int systemError) {
  switch (systemError) {
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
  if (detail.find("subject name") != std::string::npos || detail.find("subjectAltName") != std::string::npos) {
    return {TransferFault::certificate, start + "it was issued for another host."};
  }
  return {TransferFault::certificate, start + "it is not valid."};
}

TransferFailure unsecured(const Server& server, const std::string& detail) {
  // "error:0A00010B:SSL routines::wrong version number": only the last piece says something to a reader.
  const auto reason = detail.rfind("::");
  return {TransferFault::secureConnection,
          "No secure connection to " + server.place + " could be made" +
              (reason == std::string::npos ? "." : ": " + quotable(detail.substr(reason + 2)) + ".")};
}

TransferFailure notUnderstood(const Server& server) {
  const bool web = server.scheme.starts_with("http");
  return {TransferFault::other,
          "The server " + server.place + " did not answer in the language of " + (web ? "HTTP." : "FTP.")};
}

TransferFailure cutShort(const Server& server, const std::string& detail) {
  if (detail.find("chunked-encoding") != std::string::npos) {
    return {TransferFault::dropped, "The answer of the server " + server.place + " is damaged: bad chunk."};
  }
  return {TransferFault::dropped, "The server " + server.place + " broke the connection off during its answer."};
}

std::optional<TransferFailure> failureToConnect(const TransferEnd& end, const Server& server) {
  switch (end.result) {
    case CURLE_URL_MALFORMAT:
      return badAddress(end.url);
    case CURLE_COULDNT_RESOLVE_HOST:
      return TransferFailure{TransferFault::nameLookup, "The name of the host " + server.host + " could not be found."};
    case CURLE_COULDNT_RESOLVE_PROXY:
      return TransferFailure{TransferFault::nameLookup, "The name of the proxy server could not be found."};
    case CURLE_COULDNT_CONNECT:
      return notConnected(server, end.systemError);
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

std::optional<TransferFailure> failureToAnswer(const TransferEnd& end, const Server& server) {
  switch (end.result) {
    case CURLE_UNSUPPORTED_PROTOCOL:
      return isFetchedScheme(server.scheme) ? notUnderstood(server) : unfetchedScheme(server.scheme);
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_FTP_WEIRD_PASS_REPLY:
    case CURLE_FTP_WEIRD_PASV_REPLY:
    case CURLE_FTP_WEIRD_227_FORMAT:
      return notUnderstood(server);
    case CURLE_GOT_NOTHING:
      return TransferFailure{TransferFault::dropped,
                             "The server " + server.place + " closed the connection without an answer."};
    case CURLE_SEND_ERROR:
      return TransferFailure{TransferFault::dropped, "The request could not be sent to " + server.place + "."};
    case CURLE_RECV_ERROR:
    case CURLE_PARTIAL_FILE:
      return cutShort(server, end.detail);
    case CURLE_ABORTED_BY_CALLBACK:
      return TransferFailure{TransferFault::dropped,
                             "The server " + server.place + " did not confirm the end of the transfer."};
    case CURLE_TOO_MANY_REDIRECTS:
      return TransferFailure{TransferFault::tooManyRedirects,
                             "The server redirected more than " + std::to_string(end.mostRedirects) + " times."};
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
  if (end.bound != BrokenBound::none) {
    return broken(end.bound, end);
  }
  if (end.result == CURLE_OPERATION_TIMEDOUT) {
    return {TransferFault::timeOut, "The request took longer than " + secondsText(end.timeout) + "."};
  }
  // libcurl has bounds of its own beside ours.
  if (end.detail.find("response header") != std::string::npos || end.detail.find("big header") != std::string::npos) {
    return largeHeader();
  }
  if (end.result == CURLE_OUT_OF_MEMORY) {
    return noMemory();
  }
  const Server server(end.url);
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
