// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick::testing {

using HttpHeaders = std::vector<std::pair<std::string, std::string>>;

/// A request as it arrived at the test server.
struct HttpRequest {
  std::string method{};
  /// The target of the request line as it was sent, with its query.
  std::string target{};
  HttpHeaders headers{};
  std::string body{};
  /// All of it as it came, byte for byte.
  std::string wire{};
  /// The number of the connection it came by, counted from 1.
  int connection = 0;

  /// The target without its query.
  std::string path() const;
  /// The value of the first header of that name (any letter case); empty when there is none.
  std::string header(std::string_view name) const;
  bool hasHeader(std::string_view name) const;
};

enum class HttpCoding { none, gzip, deflate };

/// What the test server answers. `{.body = "hello"}` is a plain page; the other members, in this order, bend it.
struct HttpResponse {
  int status = 200;
  HttpHeaders headers{};
  std::string body{};
  /// Waits this long before answering.
  std::chrono::milliseconds delay{0};
  /// Answers only when `HttpServer::release` is called; without it the server stays silent for ever.
  bool hold = false;
  /// Sends the body compressed, with the matching Content-Encoding.
  HttpCoding coding = HttpCoding::none;
  bool chunked = false;
  /// Announces the whole body but keeps back its last bytes and closes the connection.
  std::size_t missingBytes = 0;
  /// Sends the body in pieces of this size, one every `dripInterval`; 0 sends it at once.
  std::size_t dripBytes = 0;
  std::chrono::milliseconds dripInterval{20};
  /// Sent instead of a well-formed answer, byte for byte, when not empty; then the connection is closed.
  std::string raw{};
  /// Closes the connection instead of answering.
  bool drop = false;
  /// Closes the connection after the answer.
  bool close = false;

  /// A redirect to `location`, absolute or relative.
  static HttpResponse redirect(const std::string& location, int status = 302);
};

/// The files of a TLS server: certificate and key in PEM form.
struct TlsIdentity {
  std::string certificateFile{};
  std::string keyFile{};
};

/// A web server on a free port of 127.0.0.1, served by the event loop of the test itself: it answers while the test
/// waits with `waitUntil` or pumps events otherwise.
///
///     HttpServer server;
///     server.respond("/a", {.body = "hello"});
///     fetch(server.url("/a"));
///     EXPECT_EQ(server.requests().at(0).method, "GET");
///
/// A path for which nothing was set is answered with 404.
class HttpServer {
 public:
  using Handler = std::function<HttpResponse(const HttpRequest&)>;

  HttpServer();
  /// A server that speaks TLS.
  explicit HttpServer(const TlsIdentity& identity);
  ~HttpServer();
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  std::uint16_t port() const;
  /// The address of `target` ("/path?query") on this server; `host` may be another name of this machine.
  std::string url(const std::string& target = "/", const std::string& host = "127.0.0.1") const;

  /// Answers every request for `path` (without query) with `response`; replaces what was set before.
  void respond(const std::string& path, HttpResponse response);
  /// Answers every request for `path` with what `handler` makes of it.
  void handle(const std::string& path, Handler handler);
  /// Answers the requests for all other paths.
  void handleOthers(Handler handler);
  /// Gives `response` only to those who answer the challenge with this name and password.
  void requireBasic(const std::string& path, const std::string& userName, const std::string& password,
                    HttpResponse response);
  void requireDigest(const std::string& path, const std::string& userName, const std::string& password,
                     HttpResponse response);

  /// Answers the requests that are held now.
  void release();
  /// Answers the oldest held request for `target` alone; nothing when there is none.
  void release(const std::string& target);
  /// The targets of the requests that are held and whose clients still wait, the oldest first.
  std::vector<std::string> held() const;

  /// Every request that has arrived whole, in order.
  const std::vector<HttpRequest>& requests() const;
  /// The requests for `path` (without query).
  std::vector<HttpRequest> requestsFor(const std::string& path) const;
  /// Requests that have arrived and are not answered yet, now and at most so far.
  int inFlight() const;
  int greatestInFlight() const;
  /// Connections accepted so far, and those open now.
  int connections() const;
  int openConnections() const;
  /// Forgets the recorded requests and the greatest number in flight.
  void clearRecords();

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace tarnwick::testing
