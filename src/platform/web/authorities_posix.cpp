// SPDX-License-Identifier: MIT
#include "platform/web/authorities.h"

#include <openssl/err.h>
#include <openssl/pem.h>
#include <openssl/ssl.h>
#include <openssl/x509_vfy.h>
#include <sys/stat.h>

#include <exception>
#include <limits>
#include <tuple>
#include <utility>

#include "platform/web/curl_event_loop.h"
#include "platform/web/tls_library.h"

namespace tarnwick {
namespace {

/// How many certificates are read in one round: about a millisecond's worth.
constexpr int kAtOnce = 6;

const curl_version_info_data& library() { return *curl_version_info(CURLVERSION_NOW); }

std::string textOf(const char* text) { return text == nullptr ? std::string() : text; }

/// What tells a file from the one that it was; all zero for none.
using Stamp = std::tuple<dev_t, ino_t, off_t, time_t, long>;

Stamp stampOf(const std::string& file) {
  struct stat found {};
  if (::stat(file.c_str(), &found) != 0) {
    return {};
  }
  return {found.st_dev, found.st_ino, found.st_size, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
}

template <auto kFree>
struct Freed {
  template <typename Thing>
  void operator()(Thing* thing) const {
    kFree(thing);
  }
};

using Bio = std::unique_ptr<BIO, Freed<&BIO_free>>;
using Certificate = std::unique_ptr<X509, Freed<&X509_free>>;

}  // namespace

/// The certificates of a file, as far as they have been read. One is never changed but made anew, since connections
/// that are being made have it, too.
struct Authorities::Store {
  enum class State { reading, read, unreadable };

  Store(const std::string& file, const std::string& folder)
      : stamp(stampOf(file)),
        trusted(X509_STORE_new()),
        source(file.empty() ? nullptr : BIO_new_file(file.c_str(), "r")) {
    if (trusted == nullptr || (source == nullptr && !file.empty())) {
      ERR_clear_error();
      state = State::unreadable;
      return;
    }
    // Who trusts a certificate that another one has signed trusts it by itself, as libcurl does.
    X509_STORE_set_flags(trusted.get(), X509_V_FLAG_PARTIAL_CHAIN);
    if (!folder.empty()) {
      if (X509_LOOKUP* const lookup = X509_STORE_add_lookup(trusted.get(), X509_LOOKUP_hash_dir())) {
        X509_LOOKUP_add_dir(lookup, folder.c_str(), X509_FILETYPE_PEM);
      }
    }
    state = source == nullptr ? State::read : State::reading;
  }

  void read(int most) {
    for (int i = 0; i < most && state == State::reading; ++i) {
      const Certificate next(PEM_read_bio_X509_AUX(source.get(), nullptr, nullptr, nullptr));
      if (next != nullptr && X509_STORE_add_cert(trusted.get(), next.get()) == 1) {
        ++count;
        continue;
      }
      const bool atEnd = next == nullptr && ERR_GET_REASON(ERR_peek_last_error()) == PEM_R_NO_START_LINE;
      ERR_clear_error();
      state = atEnd && count > 0 ? State::read : State::unreadable;
      source.reset();
    }
  }

  Stamp stamp;
  std::unique_ptr<X509_STORE, Freed<&X509_STORE_free>> trusted;
  Bio source;
  int count = 0;
  State state = State::reading;
};

Authorities::Authorities(const std::string& file, const std::string& folder)
    : file_(file.empty() ? textOf(library().cainfo) : file),
      folder_(folder.empty() && file.empty() ? textOf(library().capath) : folder) {}

Authorities::~Authorities() = default;

bool Authorities::areRead() const {
  return !usesOpenSsl() ||
         (store_ != nullptr && store_->state == Store::State::read && store_->stamp == stampOf(file_));
}

void Authorities::whenRead(CurlEventLoop& loop, std::function<void()> then) {
  waiting_.push_back(std::move(then));
  if (waiting_.size() == 1) {
    store_.reset();
    readOn(loop);
  }
}

void Authorities::readOn(CurlEventLoop& loop) {
  try {
    if (store_ == nullptr) {
      store_ = std::make_unique<Store>(file_, folder_);
    }
    store_->read(kAtOnce);
    if (store_->state == Store::State::reading) {
      loop.post([weak = weak_from_this(), &loop] {
        if (const auto self = weak.lock()) {
          self->readOn(loop);
        }
      });
      return;
    }
  } catch (const std::exception&) {
    // There is no memory to go on later: the handshake reads the rest.
  }
  letGo();
}

void Authorities::letGo() noexcept {
  for (const auto& then : std::exchange(waiting_, {})) {
    then();
  }
}

// With places of its own libcurl would read them in one go, those of a folder for every connection. Some versions put
// the store that they have kept in the place of the handshake's after that was prepared, so none is kept.
void Authorities::prepare(CURL* easy) const {
  if (usesOpenSsl()) {
    curl_easy_setopt(easy, CURLOPT_CAINFO, nullptr);
    curl_easy_setopt(easy, CURLOPT_CAPATH, nullptr);
    curl_easy_setopt(easy, CURLOPT_CA_CACHE_TIMEOUT, 0L);
  } else {
    curl_easy_setopt(easy, CURLOPT_CAINFO, file_.empty() ? nullptr : file_.c_str());
  }
}

CURLcode Authorities::trust(void* context) {
  if (!usesOpenSsl()) {
    return CURLE_OK;
  }
  if (store_ == nullptr || store_->state == Store::State::unreadable || store_->stamp != stampOf(file_)) {
    store_ = std::make_unique<Store>(file_, folder_);
  }
  store_->read(std::numeric_limits<int>::max());
  if (store_->state != Store::State::read) {
    return CURLE_SSL_CACERT_BADFILE;
  }
  SSL_CTX_set1_cert_store(static_cast<SSL_CTX*>(context), store_->trusted.get());
  return CURLE_OK;
}

}  // namespace tarnwick
