// SPDX-License-Identifier: MIT
#include <algorithm>
#include <climits>
#include <string_view>

#include "base/one_line.h"
#include "base/text.h"
#include "platform/address.h"
#include "platform/web/authorities.h"
#include "platform/web/content_decoder.h"
#include "platform/web/curl_callback.h"
#include "platform/web/curl_request.h"

namespace tarnwick {
namespace {

constexpr const char* kUserAgent = "Tarnwick/1.0";
/// With these a file server lets in who has no name there.
constexpr const char* kNobody = "anonymous";
constexpr const char* kNobodysPassword = "ftp@example.com";
constexpr long kReceiveBuffer = 128L * 1024;
/// The longest that libcurl takes.
constexpr std::chrono::seconds kLongestWait{INT_MAX / 1000};

// A token of RFC 9110, section 5.6.2: what a method may be. Anything else could smuggle a line into the request.
bool isToken(std::string_view text) {
  constexpr std::string_view kMarks = "!#$%&'*+-.^_`|~";
  return !text.empty() && std::ranges::all_of(text, [&](char c) {
    return isDigit(c) || isLetter(c) || kMarks.find(c) != std::string_view::npos;
  });
}

template <class Value>
void set(CURL* easy, CURLoption option, Value value) {
  curl_easy_setopt(easy, option, value);
}

}  // namespace

std::optional<TransferResult> refusalOf(const Request& request) {
  const auto address = parseAddress(request.url);
  if (!address) {
    return badAddress(request.url);
  }
  if (!isFetchedScheme(address->scheme)) {
    return unfetchedScheme(address->scheme);
  }
  // A log-in to a file server is sent in lines.
  if (address->scheme.starts_with("ftp") && (hasLineEnd(request.userName) || hasLineEnd(request.password))) {
    return badCredentials();
  }
  if (!request.method.empty() && !isToken(request.method)) {
    return badMethod(request.method);
  }
  return std::nullopt;
}

void CurlRequest::setCallbacks() {
  CURL* const easy = easy_.get();
  set(easy, CURLOPT_ERRORBUFFER, detail_.data());
  set(easy, CURLOPT_RESOLVER_START_FUNCTION, kGuarded<CurlRequest, &CurlRequest::onResolve, 2, 1>);
  set(easy, CURLOPT_RESOLVER_START_DATA, this);
  set(easy, CURLOPT_OPENSOCKETFUNCTION, kGuarded<CurlRequest, &CurlRequest::onOpen, 0, CURL_SOCKET_BAD>);
  set(easy, CURLOPT_OPENSOCKETDATA, this);
  set(easy, CURLOPT_SOCKOPTFUNCTION, kGuarded<CurlRequest, &CurlRequest::onSocket, 0, CURL_SOCKOPT_ERROR>);
  set(easy, CURLOPT_SOCKOPTDATA, this);
  set(easy, CURLOPT_SSL_CTX_FUNCTION, kGuarded<CurlRequest, &CurlRequest::onHandshake, 2, CURLE_OUT_OF_MEMORY>);
  set(easy, CURLOPT_SSL_CTX_DATA, this);
  set(easy, CURLOPT_PREREQFUNCTION, kGuarded<CurlRequest, &CurlRequest::onReady, 0, CURL_PREREQFUNC_ABORT>);
  set(easy, CURLOPT_PREREQDATA, this);
  set(easy, CURLOPT_XFERINFOFUNCTION, kGuarded<CurlRequest, &CurlRequest::onProgress, 0, 1>);
  set(easy, CURLOPT_XFERINFODATA, this);
  set(easy, CURLOPT_NOPROGRESS, 0L);
  set(easy, CURLOPT_HEADERFUNCTION, kGuarded<CurlRequest, &CurlRequest::onHeader, 3, CURL_WRITEFUNC_ERROR>);
  set(easy, CURLOPT_HEADERDATA, this);
  set(easy, CURLOPT_WRITEFUNCTION, kGuarded<CurlRequest, &CurlRequest::onPage, 3, CURL_WRITEFUNC_ERROR>);
  set(easy, CURLOPT_WRITEDATA, this);
  // A proxy's own answer is not the page's.
  set(easy, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
}

std::chrono::milliseconds CurlRequest::timeLimit() const { return std::min(request_.timeout, kLongestWait); }

void CurlRequest::setBounds() {
  CURL* const easy = easy_.get();
  // The event loop bounds all other waiting; that of a reply must not end what it has given more time.
  set(easy, CURLOPT_SERVER_RESPONSE_TIMEOUT, static_cast<long>(kLongestWait.count()));
  set(easy, CURLOPT_NOSIGNAL, 1L);
  // Cancelling must not wait for a name look-up that is under way in the system's resolver.
  set(easy, CURLOPT_QUICK_EXIT, 1L);
  // A check sees the server as it is now: nothing of an earlier request is used again.
  set(easy, CURLOPT_FRESH_CONNECT, 1L);
  set(easy, CURLOPT_FORBID_REUSE, 1L);
  set(easy, CURLOPT_SSL_SESSIONID_CACHE, 0L);
  set(easy, CURLOPT_BUFFERSIZE, kReceiveBuffer);
}

// What one request has looked up and connected is used for its redirects and challenges, and by no other request.
// With one cache of names for all, a request that ends throws out what libcurl still reads while it makes an FTP
// server's second connection for another request. With one cache of connections for all, one that an NTLM handshake
// was broken off on stays open, forbidden to be used again or not.
void CurlRequest::setCaches() {
  curl_share_setopt(caches_.get(), CURLSHOPT_SHARE, CURL_LOCK_DATA_DNS);
  curl_share_setopt(caches_.get(), CURLSHOPT_SHARE, CURL_LOCK_DATA_CONNECT);
  set(easy_.get(), CURLOPT_SHARE, caches_.get());
  set(easy_.get(), CURLOPT_DNS_CACHE_TIMEOUT, -1L);
}

void CurlRequest::setTarget() {
  CURL* const easy = easy_.get();
  const auto address = parseAddress(request_.url);
  set(easy, CURLOPT_URL, address ? address->bareUrl.c_str() : "");
  set(easy, CURLOPT_PROTOCOLS_STR, kFetchedSchemes);
  set(easy, CURLOPT_REDIR_PROTOCOLS_STR, kFetchedSchemes);
  set(easy, CURLOPT_FOLLOWLOCATION, request_.followsRedirects ? 1L : 0L);
  set(easy, CURLOPT_MAXREDIRS, static_cast<long>(kMaxRedirects));
  set(easy, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
  set(easy, CURLOPT_SSL_VERIFYPEER, 1L);
  set(easy, CURLOPT_SSL_VERIFYHOST, 2L);
  authorities_.prepare(easy);
}

bool CurlRequest::sendsBody() const {
  const std::string& method = request_.method;
  return method == "POST" || (request_.sendsBodyAlways && !method.empty() && method != "GET" && method != "HEAD");
}

void CurlRequest::setMethod() {
  CURL* const easy = easy_.get();
  const std::string& method = request_.method;
  if (method.empty() || method == "GET") {
    set(easy, CURLOPT_HTTPGET, 1L);
  } else if (sendsBody()) {
    set(easy, CURLOPT_POST, 1L);
    if (method != "POST") {
      set(easy, CURLOPT_CUSTOMREQUEST, method.c_str());
      // It stays what it is where the server leads elsewhere (RFC 9110, section 15.4), and so does what it carries.
      set(easy, CURLOPT_POSTREDIR, static_cast<long>(CURL_REDIR_POST_301 | CURL_REDIR_POST_302));
    }
    set(easy, CURLOPT_POSTFIELDS, request_.body.c_str());
    set(easy, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request_.body.size()));
  } else if (method == "HEAD") {
    set(easy, CURLOPT_NOBODY, 1L);
  } else {
    set(easy, CURLOPT_CUSTOMREQUEST, method.c_str());
  }
}

void CurlRequest::setHeaders() {
  CURL* const easy = easy_.get();
  const auto add = [](LineList& list, const std::string& line) {
    // On failure the list stays as it was.
    if (curl_slist* longer = curl_slist_append(list.get(), line.c_str())) {
      static_cast<void>(list.release());
      list.reset(longer);
    }
  };
  // Without this a large body waits a second for a "100 Continue" that many servers never send.
  add(headerLines_, "Expect:");
  add(linesWithoutBody_, "Expect:");
  std::string_view rest = request_.headers;
  while (!rest.empty()) {
    const auto end = std::min(rest.find_first_of("\r\n"), rest.size());
    if (end > 0) {
      const std::string line(rest.substr(0, end));
      add(headerLines_, line);
      if (!lowerCase(line).starts_with("content-")) {
        add(linesWithoutBody_, line);
      }
    }
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  set(easy, CURLOPT_HTTPHEADER, headerLines_.get());
  set(easy, CURLOPT_USERAGENT, kUserAgent);
  // Decoded by us on arrival: libcurl takes a coding that was cut for a whole one.
  set(easy, CURLOPT_ACCEPT_ENCODING, ContentDecoder::accepted().c_str());
  set(easy, CURLOPT_HTTP_CONTENT_DECODING, 0L);
  // Cookies on, none to begin with.
  set(easy, CURLOPT_COOKIEFILE, "");
}

// The library is always given a name: where it has none, it takes those of the address that a redirect leads to, and
// with an empty one some systems answer a challenge with the user's own log-in.
void CurlRequest::setCredentials() {
  CURL* const easy = easy_.get();
  std::string userName = request_.userName;
  std::string password = request_.password;
  if (userName.empty() && password.empty()) {
    if (const auto address = parseAddress(request_.url)) {
      userName = address->userName;
      password = address->password;
    }
  }
  hasCredentials_ = !userName.empty() || !password.empty();
  if (!hasCredentials_) {
    // No challenge is answered, and who is nobody may be so everywhere.
    set(easy, CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_NONE));
    set(easy, CURLOPT_UNRESTRICTED_AUTH, 1L);
    userName = kNobody;
    password = kNobodysPassword;
  } else if (userName.empty()) {
    // The only kind, but not before the server has asked for it.
    set(easy, CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_BASIC | CURLAUTH_ONLY));
  } else {
    // With more than one kind allowed nothing is sent before the server has asked and named its kinds.
    set(easy, CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_BASIC | CURLAUTH_DIGEST | CURLAUTH_NTLM));
  }
  set(easy, CURLOPT_USERNAME, userName.c_str());
  set(easy, CURLOPT_PASSWORD, password.c_str());
}

}  // namespace tarnwick
