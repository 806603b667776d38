// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/check_timings.h"

namespace tarnwick {

/// The states that a transfer control reports, in the order of a request's life.
namespace transfer_state {
inline constexpr int none = 0;
inline constexpr int resolvingHost = 1;
inline constexpr int hostResolved = 2;
inline constexpr int connecting = 3;
inline constexpr int connected = 4;
inline constexpr int requesting = 5;
inline constexpr int requestSent = 6;
inline constexpr int receivingResponse = 7;
inline constexpr int responseReceived = 8;
inline constexpr int disconnecting = 9;
inline constexpr int disconnected = 10;
inline constexpr int error = 11;
inline constexpr int responseCompleted = 12;

/// True for a state that ends a request.
constexpr bool isLast(int state) { return state == error || state == responseCompleted; }
}  // namespace transfer_state

/// Why a transfer failed, by number.
enum class TransferFault : long {
  none = 0,
  other = 1,
  /// This machine had no memory or no file handle left for the request, which says nothing about the server.
  shortage = 2,
  badUrl = 3,
  badMethod = 4,
  nameLookup = 6,
  refused = 7,
  dropped = 18,
  timeOut = 28,
  certificate = 60,
  secureConnection = 35,
  tooManyRedirects = 47,
  badContentCoding = 61,
  tooLarge = 63,
};

/// The largest page that is taken, in bytes after decoding; a longer one is a failed transfer.
inline constexpr std::size_t kLargestPage = std::size_t{64} * 1024 * 1024;

/// How the cause of a request begins that has run into its time-out.
inline constexpr std::string_view kTookTooLong = "The request took longer than ";

/// The time-out of a request for which none is set, or one of zero or less.
inline constexpr std::chrono::seconds kDefaultRequestTimeout{60};

/// What one request asks for.
struct Request {
  /// Blanks around it do not count; without a scheme it is http.
  std::string url{};
  /// The credentials that answer the server's challenge; they never leave for another host on a redirect.
  std::string userName{};
  std::string password{};
  /// The most time the whole request may take; zero or less means `kDefaultRequestTimeout`.
  std::chrono::seconds timeout{kDefaultRequestTimeout};
  /// "GET", "POST", or any other method text; empty means "GET".
  std::string method{};
  /// Sent with "POST" only, unless `sendsBodyAlways`.
  std::string body{};
  /// Further header lines, separated by CR LF; empty for none.
  std::string headers{};
  /// The IP address of a server that has failed: another one that the host has, too, is tried first.
  std::string otherThan{};
  /// The body is sent with whatever method but "GET" and "HEAD", with which no server expects one.
  bool sendsBodyAlways = false;
  /// Else the answer that leads elsewhere is the page, and nothing of the request goes to another place.
  bool followsRedirects = true;
  /// Whether to look at the certificate of the server.
  bool wantsCertificate = false;
};

/// By what the server of a page has proved who it is, as far as that was verified.
struct ServerCertificate {
  std::chrono::sys_seconds began;  ///< when the last one of the chain of certificates began to hold
  std::chrono::sys_seconds ends;   ///< when the first one of them holds no more
  std::string issuer{};            ///< of the server's own: an organisation, or else a name, as it may be shown
};

/// What a request came to: a page, or a fault and its cause.
struct TransferResult {
  TransferFault fault = TransferFault::none;
  /// In words that are the same each time the same thing fails, since a check's text is compared with that of the next
  /// check: no times, byte counts or local ports.
  std::string cause{};
  /// Every byte as it came, decoded.
  std::string page{};
  /// The status of the HTTP answer that brought the page (RFC 9110, section 15); 0 where none did.
  int status = 0;
  /// The IP address of the server that was asked last; empty where none was.
  std::string server{};
  /// How long the whole request took, look-up and redirects included.
  std::chrono::milliseconds took{0};
  /// The parts of that.
  CheckTimings timings{};
  /// What a request that wants it has found on the way, redirects included: each server that it was led to has to hold.
  /// Nothing where none is secured, where none was verified, and where the TLS library does not tell.
  std::optional<ServerCertificate> certificate{};

  /// The fault as it is stored and shown; 0 for none.
  long code() const { return static_cast<long>(fault); }
};

/// Fetches one page at a time, without blocking: http, https, ftp and ftps, redirects within those followed,
/// certificates verified, compressed answers decoded, nothing cached. An HTTP error page is a page.
///
/// The events arrive through the event loop, never from inside `execute` or `cancel`.
class TransferControl {
 public:
  virtual ~TransferControl() = default;

  /// Starts the request. REQUIRES: not `stillExecuting()`.
  virtual void execute(Request request) = 0;

  /// True from `execute` until after the last state (11 or 12) has been reported.
  virtual bool stillExecuting() const = 0;

  /// Ends a request in progress at once; no further event of it arrives.
  virtual void cancel() = 0;

  /// Hands over what the request came to, once, from its last state until the next `execute`; otherwise no fault and an
  /// empty page.
  virtual TransferResult takeResult() = 0;

  /// Called with each state that the request reaches, in rising order; 11 or 12 is the last.
  virtual void onStateChanged(std::function<void(int state)> handler) = 0;
  /// Called when the control is no longer executing, after the last state's event.
  virtual void onIdle(std::function<void()> handler) = 0;
};

/// Makes transfer controls that share the machine's network.
class TransferMaker {
 public:
  virtual ~TransferMaker() = default;
  virtual std::unique_ptr<TransferControl> makeTransferControl() = 0;
  /// Whether this machine knows a way to the Internet; nobody is asked. One that cannot tell is taken to have one.
  virtual bool hasWayOut() { return true; }
};

}  // namespace tarnwick
