// SPDX-License-Identifier: MIT
#include <openssl/ssl.h>
#include <openssl/x509_vfy.h>

#include <string_view>

#include "platform/web/authorities.h"

namespace tarnwick {
namespace {

/// A certificate that is added to the file counts within the hour.
constexpr long kReadAgainAfter = 3600;

const curl_version_info_data& library() { return *curl_version_info(CURLVERSION_NOW); }

/// Others give no such context to the handshake's callback.
bool usesOpenSsl() {
  static const bool uses =
      library().ssl_version != nullptr && std::string_view(library().ssl_version).starts_with("OpenSSL/");
  return uses;
}

}  // namespace

void shareAuthorities(CURL* easy, const std::string& file) {
  if (!file.empty()) {
    curl_easy_setopt(easy, CURLOPT_CAINFO, file.c_str());
  }
  if (usesOpenSsl()) {
    curl_easy_setopt(easy, CURLOPT_CAPATH, nullptr);
    curl_easy_setopt(easy, CURLOPT_CA_CACHE_TIMEOUT, kReadAgainAfter);
  }
}

// The store is the one that all transfers share; a folder that it knows already is not added again.
void trustFolder(void* context, const std::string& folder) {
  const char* const path = folder.empty() ? library().capath : folder.c_str();
  if (!usesOpenSsl() || path == nullptr) {
    return;
  }
  X509_STORE* const store = SSL_CTX_get_cert_store(static_cast<SSL_CTX*>(context));
  if (X509_LOOKUP* const lookup = X509_STORE_add_lookup(store, X509_LOOKUP_hash_dir())) {
    X509_LOOKUP_add_dir(lookup, path, X509_FILETYPE_PEM);
  }
}

}  // namespace tarnwick
