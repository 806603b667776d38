// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/web/content_decoder.h"
#include "platform/web/curl_event_loop.h"
#include "platform/web/curl_transfers.h"
#include "platform/web/page_body.h"
#include "platform/web/request_parts.h"
#include "platform/web/response_header.h"
#include "platform/web/transfer_failure.h"

namespace tarnwick {

class Authorities;

/// Why `request` cannot be sent at all; nothing when it can.
std::optional<TransferResult> refusalOf(const Request& request);

/// One request, its redirects and challenges included: an easy handle with its cookies, and the page so far.
class CurlRequest {
 public:
  /// `onState` is called from inside libcurl with each state that is reached, in rising order without gaps; it must
  /// not touch any transfer. REQUIRES: `refusalOf(request)` is nothing. `authorities` and `loop` outlive
  /// the request.
  CurlRequest(Request request, const CurlTransfers::Options& options, Authorities& authorities, CurlEventLoop& loop,
              std::function<void(int)> onState);
  ~CurlRequest();
  CurlRequest(const CurlRequest&) = delete;
  CurlRequest& operator=(const CurlRequest&) = delete;

  /// Whether its own address, whatever it is led to, is that of a server that has to prove who it is.
  bool isSecured() const;

  /// Starts it; `done` is called from the event loop with libcurl's result. False when there is no memory for it.
  bool start(std::function<void(CURLcode)> done);

  /// Whether it has come to nothing only because the host has no other address than the one that was to be tried last.
  bool knowsNoOtherAddress(CURLcode reported) const { return reported != CURLE_OK && avoided_ && !connected_; }
  /// What was asked for.
  const Request& request() const { return request_; }

  /// Hands over what a transfer that libcurl ended with `reported` came to, after the states that it had reached but
  /// that were not seen on the way have been reported.
  TransferResult finish(CURLcode reported);
  /// Hands over the page that belongs to it, once.
  PageBody takePage() { return std::exchange(page_, {}); }

 private:
  static constexpr int kMaxRedirects = 20;

  using EasyHandle = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
  using Caches = std::unique_ptr<CURLSH, decltype(&curl_share_cleanup)>;
  using LineList = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

  struct Connection {
    bool handshaking = false;
    /// It takes requests.
    bool ready = false;
    /// Something has come back.
    bool answered = false;
    /// The system's error from before it was ready, as from another address of the host.
    int earlierError = 0;
    /// It is secured, and `goodbye_` tells how it ends.
    bool tellsGoodbye = false;
  };

  void setCallbacks();
  std::chrono::milliseconds timeLimit() const;
  void setBounds();
  void setCaches();
  void setTarget();
  bool sendsBody() const;
  void setMethod();
  void setHeaders();
  void setCredentials();

  template <class, auto, std::size_t, auto>
  friend struct CurlCallback;
  /// What libcurl calls, but through `kGuarded`: they may raise.
  static int onResolve(void* resolver, void* reserved, void* self);
  static curl_socket_t onOpen(void* self, curlsocktype purpose, curl_sockaddr* address);
  static int onSocket(void* self, curl_socket_t socket, curlsocktype purpose);
  static CURLcode onHandshake(CURL* easy, void* sslContext, void* self);
  static int onReady(void* self, char* remoteAddress, char* localAddress, int remotePort, int localPort);
  static int onProgress(void* self, curl_off_t downTotal, curl_off_t down, curl_off_t upTotal, curl_off_t up);
  static std::size_t onHeader(char* data, std::size_t size, std::size_t count, void* self);
  static std::size_t onPage(char* data, std::size_t size, std::size_t count, void* self);

  void ranOutOfMemory() { aborted_ = AbortReason::memory; }
  void completeStates(CURLcode result);
  TransferResult failure(CURLcode result) const;
  AbortReason abortReason(CURLcode result) const;
  void noteCertificate();
  void reach(int state);
  void noteSent(curl_off_t bodyBytes);
  bool addHeader(std::string_view line);
  bool addPiece(std::string_view piece);
  bool addPage(std::string_view piece);
  void noteRedirect(int status);
  bool announcedTooLarge() const;
  bool endsWithoutGoodbye() const;
  bool waitsInside() const;
  bool overFtp() const;
  int refusedSocket(CURLcode result) const;
  int systemError() const;
  bool isToBeAvoided(const curl_sockaddr& address) const;

  Request request_;
  CurlTransfers::Options options_;
  Authorities& authorities_;
  CurlEventLoop& loop_;
  std::function<void(int)> onState_;
  // The last connection has ended in the way of TLS. Told as long as there are connections, which are among the caches.
  bool goodbye_ = false;
  Caches caches_;
  EasyHandle easy_;
  LineList headerLines_;
  // Those of a request without a body.
  LineList linesWithoutBody_;
  bool hasCredentials_ = false;
  std::array<char, CURL_ERROR_SIZE> detail_{};
  PageBody page_;
  std::size_t headerBytes_ = 0;
  ResponseHeader header_;
  // Of an answer whose page comes compressed.
  std::optional<ContentDecoder> decoder_;
  RequestParts parts_;
  // Of the servers so far: the issuer of the first one's, and the time in which all hold.
  std::optional<ServerCertificate> certificate_;
  // Where an answer has led elsewhere last.
  std::string redirectedBy_;
  // The connection that was made last.
  Connection connection_;
  // Why the system has refused the socket that was asked for last; 0 when it has not.
  int refusedSocket_ = 0;
  // An address was left out for another one, and one has been connected to.
  bool avoided_ = false;
  bool connected_ = false;
  AbortReason aborted_ = AbortReason::none;
  int state_ = transfer_state::none;
};

}  // namespace tarnwick
