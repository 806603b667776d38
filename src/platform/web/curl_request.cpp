// SPDX-License-Identifier: MIT
#include "platform/web/curl_request.h"

#if __has_include(<arpa/inet.h>)
#include <arpa/inet.h>
#endif

#include <algorithm>
#include <string_view>

#include "base/text.h"
#include "platform/address.h"
#include "platform/os/socket_inheritance.h"
#include "platform/web/authorities.h"
#include "platform/web/socket_errors.h"
#include "platform/web/tls_goodbye.h"
#include "platform/web/verified_chain.h"

namespace tarnwick {
namespace {

constexpr int kLargestHeader = 256 * 1024;
/// libcurl waits inside itself for the last replies of an FTP server; longer than this the window would seem frozen.
constexpr std::chrono::milliseconds kLongestWaitInside{900};
/// The same for a server that says something all the time, and thereby keeps libcurl from asking us; in seconds.
constexpr long kLongestLastReply = 1;
constexpr int kRedirection = 300;
constexpr int kMoved = 301;
constexpr int kFound = 302;
constexpr int kSeeOther = 303;
constexpr int kClientError = 400;

std::string textOf(CURL* easy, CURLINFO what) {
  const char* text = nullptr;
  curl_easy_getinfo(easy, what, &text);
  return text == nullptr ? "" : text;
}

int numberOf(CURL* easy, CURLINFO what) {
  long number = 0;
  curl_easy_getinfo(easy, what, &number);
  return static_cast<int>(number);
}

/// As libcurl writes it.
std::string addressText(const sockaddr& address) {
  std::array<char, INET6_ADDRSTRLEN> text{};
  const void* number = nullptr;
  if (address.sa_family == AF_INET) {
    number = &reinterpret_cast<const sockaddr_in&>(address).sin_addr;
  } else if (address.sa_family == AF_INET6) {
    number = &reinterpret_cast<const sockaddr_in6&>(address).sin6_addr;
  }
  return number != nullptr && inet_ntop(address.sa_family, number, text.data(), text.size()) != nullptr ? text.data()
                                                                                                        : "";
}

AbortReason reasonOf(HeaderFault fault) {
  switch (fault) {
    case HeaderFault::unclearLength:
      return AbortReason::length;
    case HeaderFault::endlessPage:
      return AbortReason::page;
    case HeaderFault::otherProtocol:
      return AbortReason::protocol;
    case HeaderFault::none:
      break;
  }
  return AbortReason::none;
}

}  // namespace

CurlRequest::CurlRequest(Request request, const CurlTransfers::Options& options, Authorities& authorities,
                         CurlEventLoop& loop, std::function<void(int)> onState)
    : request_(std::move(request)),
      options_(options),
      authorities_(authorities),
      loop_(loop),
      onState_(std::move(onState)),
      caches_(curl_share_init(), &curl_share_cleanup),
      easy_(curl_easy_init(), &curl_easy_cleanup),
      headerLines_(nullptr, &curl_slist_free_all),
      linesWithoutBody_(nullptr, &curl_slist_free_all) {
  if (easy_ && caches_) {
    setCallbacks();
    setBounds();
    setCaches();
    setTarget();
    setMethod();
    setHeaders();
    setCredentials();
  }
}

CurlRequest::~CurlRequest() {
  if (easy_) {
    loop_.stop(easy_.get());
  }
}

bool CurlRequest::isSecured() const {
  const auto address = parseAddress(request_.url);
  return address && (address->scheme == "https" || address->scheme == "ftps");
}

bool CurlRequest::start(std::function<void(CURLcode)> done) {
  return easy_ && caches_ && loop_.start(easy_.get(), timeLimit(), std::move(done));
}

int CurlRequest::onResolve(void*, void*, void* self) {
  static_cast<CurlRequest*>(self)->reach(transfer_state::resolvingHost);
  return 0;
}

curl_socket_t CurlRequest::onOpen(void* self, curlsocktype, curl_sockaddr* address) {
  auto* const request = static_cast<CurlRequest*>(self);
  if (request->isToBeAvoided(*address)) {
    // libcurl goes on with the next one, if there is any.
    request->avoided_ = true;
    return CURL_SOCKET_BAD;
  }
  const curl_socket_t opened = ::socket(address->family, address->socktype, address->protocol);
  request->refusedSocket_ = opened == CURL_SOCKET_BAD ? lastSocketError() : 0;
  return opened;
}

bool CurlRequest::isToBeAvoided(const curl_sockaddr& address) const {
  return !connected_ && !request_.otherThan.empty() && addressText(address.addr) == request_.otherThan;
}

int CurlRequest::onSocket(void* self, curl_socket_t socket, curlsocktype) {
  setCloseOnExec(static_cast<std::uintptr_t>(socket));
  auto* const request = static_cast<CurlRequest*>(self);
  request->connection_ = {};
  request->connected_ = true;
  request->reach(transfer_state::connecting);
  return CURL_SOCKOPT_OK;
}

CURLcode CurlRequest::onHandshake(CURL*, void* context, void* self) {
  auto* const request = static_cast<CurlRequest*>(self);
  if (const CURLcode trusted = request->authorities_.trust(context); trusted != CURLE_OK) {
    return trusted;
  }
  request->connection_.tellsGoodbye = watchGoodbye(context, request->goodbye_);
  request->connection_.handshaking = true;
  request->reach(transfer_state::connected);
  return CURLE_OK;
}

int CurlRequest::onReady(void* self, char*, char*, int, int) {
  auto* const request = static_cast<CurlRequest*>(self);
  request->connection_.ready = true;
  request->parts_.note(request->easy_.get());
  if (request->request_.wantsCertificate) {
    request->noteCertificate();
  }
  request->connection_.earlierError = request->systemError();
  request->reach(transfer_state::requesting);
  return CURL_PREREQFUNC_OK;
}

int CurlRequest::onProgress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t up) {
  auto* const request = static_cast<CurlRequest*>(self);
  request->noteSent(up);
  return request->waitsInside() ? 1 : 0;
}

std::size_t CurlRequest::onHeader(char* data, std::size_t size, std::size_t count, void* self) {
  const std::size_t length = size * count;
  return static_cast<CurlRequest*>(self)->addHeader({data, length}) ? length : 0;
}

std::size_t CurlRequest::onPage(char* data, std::size_t size, std::size_t count, void* self) {
  const std::size_t length = size * count;
  // Any other number than the length ends the transfer; for an empty piece that must not be 0.
  return static_cast<CurlRequest*>(self)->addPiece({data, length}) ? length : length + 1;
}

void CurlRequest::noteCertificate() {
  const auto next = verifiedCertificate(easy_.get());
  if (!certificate_ || !next) {
    certificate_ = certificate_ ? certificate_ : next;
    return;
  }
  certificate_->began = std::max(certificate_->began, next->began);
  certificate_->ends = std::min(certificate_->ends, next->ends);
}

void CurlRequest::reach(int state) {
  while (state_ < state) {
    onState_(++state_);
  }
}

void CurlRequest::noteSent(curl_off_t bodyBytes) {
  if (state_ != transfer_state::requesting) {
    return;
  }
  long requestBytes = 0;
  curl_easy_getinfo(easy_.get(), CURLINFO_REQUEST_SIZE, &requestBytes);
  const auto wanted = sendsBody() ? static_cast<curl_off_t>(request_.body.size()) : curl_off_t{0};
  if (requestBytes > 0 && bodyBytes >= wanted) {
    reach(transfer_state::requestSent);
  }
}

bool CurlRequest::addHeader(std::string_view line) {
  connection_.answered = true;
  headerBytes_ += line.size();
  aborted_ = headerBytes_ > std::size_t{kLargestHeader} ? AbortReason::header : reasonOf(header_.add(line));
  if (aborted_ != AbortReason::none) {
    return false;
  }
  // The lines of an FTP server come here too, its greeting before anything was asked.
  if (line.starts_with("HTTP/")) {
    reach(transfer_state::receivingResponse);
    decoder_.reset();
    const int status = statusOf(line);
    if (status >= kRedirection && status < kClientError) {
      noteRedirect(status);
    }
  } else if (overFtp() && (line.starts_with("150 ") || line.starts_with("125 "))) {
    // The file comes (RFC 959, section 5.4). Only one more reply is waited for, and that wait is inside libcurl.
    curl_easy_setopt(easy_.get(), CURLOPT_SERVER_RESPONSE_TIMEOUT, kLongestLastReply);
  }
  return true;
}

void CurlRequest::noteRedirect(int status) {
  CURL* const easy = easy_.get();
  redirectedBy_ = textOf(easy, CURLINFO_EFFECTIVE_URL);
  const auto first = parseAddress(request_.url);
  const auto here = parseAddress(redirectedBy_);
  if (hasCredentials_ && first && here && (first->scheme != here->scheme || first->port != here->port)) {
    // The library has forgotten its credentials on the way: from here it would take those of an address.
    curl_easy_setopt(easy, CURLOPT_DISALLOW_USERNAME_IN_URL, 1L);
  }
  if (status == kSeeOther) {
    // What follows is fetched by GET whatever this was (RFC 9110, section 15.4.4); libcurl keeps a method of ours.
    curl_easy_setopt(easy, CURLOPT_CUSTOMREQUEST, nullptr);
  }
  if (status == kSeeOther || (request_.method == "POST" && (status == kMoved || status == kFound))) {
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, linesWithoutBody_.get());
  }
}

bool CurlRequest::addPiece(std::string_view piece) {
  reach(transfer_state::receivingResponse);
  // A file server's file is what it is, also behind the header that has led there.
  if (header_.codings().empty() || overFtp()) {
    return addPage(piece);
  }
  if (!decoder_) {
    decoder_.emplace(header_.codings(), options_.largestPage);
  }
  const bool decoded = decoder_->decode(piece, [this](std::string_view made) { return addPage(made); });
  if (!decoded && aborted_ == AbortReason::none) {
    aborted_ = AbortReason::coding;
  }
  return decoded;
}

bool CurlRequest::addPage(std::string_view piece) {
  if (piece.size() > options_.largestPage - page_.size() || (page_.empty() && announcedTooLarge())) {
    aborted_ = AbortReason::page;
    return false;
  }
  page_.append(piece);
  return true;
}

bool CurlRequest::announcedTooLarge() const {
  curl_off_t length = -1;
  curl_easy_getinfo(easy_.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
  return length > 0 && static_cast<std::size_t>(length) > options_.largestPage;
}

bool CurlRequest::waitsInside() const { return loop_.timeInside() >= kLongestWaitInside && overFtp(); }

bool CurlRequest::overFtp() const {
  const char* scheme = nullptr;
  curl_easy_getinfo(easy_.get(), CURLINFO_SCHEME, &scheme);
  return scheme != nullptr && lowerCase(scheme[0]) == 'f';
}

TransferResult CurlRequest::finish(CURLcode reported) {
  if (reported == CurlEventLoop::kStarved) {
    ranOutOfMemory();
  }
  // libcurl takes an answer that breaks off inside its header for a whole one.
  const bool cut = reported == CURLE_OK && (header_.open() || endsWithoutGoodbye());
  CURLcode result = cut ? CURLE_PARTIAL_FILE : reported;
  if (result == CURLE_OK && decoder_ && !decoder_->complete()) {
    aborted_ = AbortReason::cutCoding;
    result = CURLE_BAD_CONTENT_ENCODING;
  }
  completeStates(result);
  TransferResult ended = result == CURLE_OK ? TransferResult() : failure(result);
  curl_off_t took = 0;
  curl_easy_getinfo(easy_.get(), CURLINFO_TOTAL_TIME_T, &took);
  ended.took = std::chrono::ceil<std::chrono::milliseconds>(std::chrono::microseconds(took));
  parts_.note(easy_.get());
  ended.timings = parts_.timings(easy_.get());
  ended.timings.whole = ended.took;
  if (!connection_.answered) {
    // A connection that ends without an answer counts as one for libcurl.
    ended.timings.firstByte.reset();
  }
  ended.certificate = std::move(certificate_);
  ended.server = textOf(easy_.get(), CURLINFO_PRIMARY_IP);
  long status = 0;
  curl_easy_getinfo(easy_.get(), CURLINFO_RESPONSE_CODE, &status);
  ended.status = overFtp() ? 0 : static_cast<int>(status);
  return ended;
}

// A page without a length ends where its connection does; a secured one tells that from a cut. Over FTP a reply does.
bool CurlRequest::endsWithoutGoodbye() const {
  return header_.endsWithConnection() && connection_.tellsGoodbye && !goodbye_ && request_.method != "HEAD" &&
         !overFtp();
}

void CurlRequest::completeStates(CURLcode result) {
  if (result == CURLE_OK) {
    reach(transfer_state::disconnected);
    return;
  }
  curl_off_t connectTime = 0;
  curl_easy_getinfo(easy_.get(), CURLINFO_CONNECT_TIME_T, &connectTime);
  if (state_ == transfer_state::connecting && connectTime > 0) {
    reach(transfer_state::connected);
  }
  curl_off_t sent = 0;
  curl_easy_getinfo(easy_.get(), CURLINFO_SIZE_UPLOAD_T, &sent);
  noteSent(sent);
}

int CurlRequest::refusedSocket(CURLcode result) const {
  // Of these libcurl tells no more, and both need files and sockets of the system's.
  const bool neededMore = result == CURLE_COULDNT_RESOLVE_HOST || result == CURLE_SSL_CACERT_BADFILE;
  return refusedSocket_ == 0 && neededMore ? shortageOfSockets() : refusedSocket_;
}

int CurlRequest::systemError() const {
  const int error = errnoOfSocket(numberOf(easy_.get(), CURLINFO_OS_ERRNO));
  return error == connection_.earlierError ? 0 : error;
}

// libcurl has bounds of its own for headers. What breaks them does not come to us; it is counted, or told as a lack of
// memory when it is a single line.
AbortReason CurlRequest::abortReason(CURLcode result) const {
  if (aborted_ != AbortReason::none) {
    return aborted_;
  }
  const bool longLine = result == CURLE_OUT_OF_MEMORY && state_ >= transfer_state::requesting && page_.empty();
  const bool manyBytes = numberOf(easy_.get(), CURLINFO_HEADER_SIZE) > kLargestHeader;
  return longLine || manyBytes ? AbortReason::header : AbortReason::none;
}

TransferResult CurlRequest::failure(CURLcode result) const {
  CURL* const easy = easy_.get();
  const std::string url = textOf(easy, CURLINFO_EFFECTIVE_URL);
  const std::string peer = textOf(easy, CURLINFO_PRIMARY_IP);
  return failureOf({.result = result,
                    .detail = detail_.data(),
                    .url = url.empty() ? request_.url : url,
                    .peer = peer.empty() ? "" : peer + " port " + std::to_string(numberOf(easy, CURLINFO_PRIMARY_PORT)),
                    .systemError = systemError(),
                    .refusedSocket = refusedSocket(result),
                    .certificateError = numberOf(easy, CURLINFO_SSL_VERIFYRESULT),
                    .status = numberOf(easy, CURLINFO_RESPONSE_CODE),
                    .redirectedBy = redirectedBy_,
                    .handshaking = connection_.handshaking,
                    .ready = connection_.ready,
                    .answered = connection_.answered,
                    .chunked = header_.chunked(),
                    .aborted = abortReason(result),
                    .timeout = request_.timeout,
                    .largestPage = options_.largestPage,
                    .maxRedirects = kMaxRedirects,
                    .caFile = options_.caFile});
}

}  // namespace tarnwick
