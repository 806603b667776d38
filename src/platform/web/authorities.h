// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tarnwick {

class CurlEventLoop;

/// The certificate authorities that secured transfers trust: those of a file, which is read once for all transfers and
/// again only when it has changed, and those of a folder, which is looked into only for one that the file does not
/// hold. Where certificates are not OpenSSL's affair nothing is kept, and the library judges them in its own way.
class Authorities : public std::enable_shared_from_this<Authorities> {
 public:
  /// `file` in PEM, `folder` with the names that `openssl rehash` gives; those of the system where neither is named.
  Authorities(const std::string& file, const std::string& folder);
  ~Authorities();
  Authorities(const Authorities&) = delete;
  Authorities& operator=(const Authorities&) = delete;

  /// Whether the file has been read as it is now.
  bool areRead() const;

  /// Reads the file, a little of it in each round of `loop`, since the whole of a system's takes long enough to be seen
  /// in a window, and calls `then` from there. Where it cannot be read that is told to `trust` only.
  void whenRead(CurlEventLoop& loop, std::function<void()> then);

  /// Before the transfer `easy` begins: has it ask `trust`.
  void prepare(CURL* easy) const;

  /// From within the handshake: `context` is what CURLOPT_SSL_CTX_FUNCTION is given. Reads what is not read yet.
  /// CURLE_SSL_CACERT_BADFILE when that is not possible.
  CURLcode trust(void* context);

 private:
  struct Store;

  void readOn(CurlEventLoop& loop);
  void letGo() noexcept;

  std::string file_;
  std::string folder_;
  std::unique_ptr<Store> store_;
  std::vector<std::function<void()>> waiting_;
};

}  // namespace tarnwick
