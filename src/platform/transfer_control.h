#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

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
}  // namespace transfer_state

/// What a transfer that failed reports as its `responseCode`.
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

/// The time-out of a request for which none is set, or one of zero or less.
inline constexpr std::chrono::seconds kDefaultRequestTimeout{60};

/// Fetches one page at a time, without blocking: http, https, ftp and ftps, redirects within those followed,
/// certificates verified, compressed answers decoded, nothing cached. An HTTP error page is a page.
///
/// The events arrive through the event loop, never from inside `execute` or `cancel`.
class TransferControl {
 public:
  virtual ~TransferControl() = default;

  /// The address fetched by the next `execute`. Blanks around it do not count; without a scheme it is http.
  virtual void setUrl(const std::string& url) = 0;
  /// The credentials that answer the server's challenge; they never leave for another host on a redirect.
  virtual void setUserName(const std::string& userName) = 0;
  virtual void setPassword(const std::string& password) = 0;
  /// The most time the whole request may take; zero or less means `kDefaultRequestTimeout`.
  virtual void setRequestTimeout(std::chrono::seconds timeout) = 0;
  virtual std::chrono::seconds requestTimeout() const = 0;

  /// Starts the request. `operation` is the method ("GET", "POST", or any other method text; empty means "GET"),
  /// `data` the body, `headers` further request header lines, separated by CR LF, empty for none.
  /// REQUIRES: not `stillExecuting()`.
  virtual void execute(const std::string& operation, const std::string& data, const std::string& headers) = 0;

  /// True from `execute` until after the last state (11 or 12) has been reported.
  virtual bool stillExecuting() const = 0;

  /// Ends a request in progress at once; no further event of it arrives.
  virtual void cancel() = 0;

  /// After state 11: the fault's number (see `TransferFault`) and its cause in words; after state 12: 0 and empty.
  virtual long responseCode() const = 0;
  virtual const std::string& responseInfo() const = 0;

  /// Takes up to `size` further bytes of the page; empty when all has been taken. After state 12 only.
  virtual std::string getChunk(std::size_t size) = 0;

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
};

}  // namespace tarnwick
