// SPDX-License-Identifier: MIT
#include <openssl/asn1.h>
#include <openssl/crypto.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <memory>
#include <string>

#include "base/visible_text.h"
#include "platform/web/tls_library.h"
#include "platform/web/verified_chain.h"

namespace tarnwick {
namespace {

using std::chrono::sys_seconds;

/// A name may be as long as its issuer likes.
constexpr std::size_t kLongestName = 200;

std::optional<sys_seconds> momentOf(const ASN1_TIME* time) {
  std::tm parts{};
  if (time == nullptr || ASN1_TIME_to_tm(time, &parts) != 1) {
    return std::nullopt;
  }
  const std::chrono::year_month_day day{std::chrono::year(parts.tm_year + 1900),
                                        std::chrono::month(static_cast<unsigned>(parts.tm_mon + 1)),
                                        std::chrono::day(static_cast<unsigned>(parts.tm_mday))};
  return std::chrono::sys_days(day) + std::chrono::hours(parts.tm_hour) + std::chrono::minutes(parts.tm_min) +
         std::chrono::seconds(parts.tm_sec);
}

struct FreeOfOpenSsl {
  void operator()(unsigned char* text) const { OPENSSL_free(text); }
};

/// The last part of that kind of a name, in UTF-8; empty where it has none.
std::string partOf(const X509_NAME* name, int kind) {
  int place = -1;
  for (int next = place; (next = X509_NAME_get_index_by_NID(name, kind, next)) >= 0;) {
    place = next;
  }
  if (place < 0) {
    return {};
  }
  unsigned char* bytes = nullptr;
  const int length = ASN1_STRING_to_UTF8(&bytes, X509_NAME_ENTRY_get_data(X509_NAME_get_entry(name, place)));
  const std::unique_ptr<unsigned char, FreeOfOpenSsl> owner(bytes);
  return length > 0 ? std::string(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length))
                    : std::string();
}

// The organisation: each of them has several certificates that it signs with in turn.
std::string issuerOf(const X509* certificate) {
  const X509_NAME* const name = X509_get_issuer_name(certificate);
  std::string issuer = partOf(name, NID_organizationName);
  if (issuer.empty()) {
    issuer = partOf(name, NID_commonName);
  }
  return visibleText(issuer, kLongestName);
}

SSL* connectionOf(CURL* easy) {
  const curl_tlssessioninfo* session = nullptr;
  if (!usesOpenSsl() || curl_easy_getinfo(easy, CURLINFO_TLS_SSL_PTR, &session) != CURLE_OK || session == nullptr ||
      session->backend != CURLSSLBACKEND_OPENSSL) {
    return nullptr;
  }
  return static_cast<SSL*>(session->internals);
}

}  // namespace

std::optional<ServerCertificate> verifiedCertificate(CURL* easy) {
  const SSL* const connection = connectionOf(easy);
  const STACK_OF(X509)* const chain = connection == nullptr ? nullptr : SSL_get0_verified_chain(connection);
  const int length = chain == nullptr ? 0 : sk_X509_num(chain);
  if (length == 0 || SSL_get_verify_result(connection) != X509_V_OK) {
    return std::nullopt;
  }
  ServerCertificate found{sys_seconds::min(), sys_seconds::max(), issuerOf(sk_X509_value(chain, 0))};
  // The last one is trusted on this machine, and is replaced here, not there; but for one that is trusted by itself.
  for (int i = 0; i < std::max(1, length - 1); ++i) {
    const X509* const certificate = sk_X509_value(chain, i);
    const auto began = momentOf(X509_get0_notBefore(certificate));
    const auto ends = momentOf(X509_get0_notAfter(certificate));
    if (!began || !ends) {
      return std::nullopt;
    }
    found.began = std::max(found.began, *began);
    found.ends = std::min(found.ends, *ends);
  }
  return found;
}

}  // namespace tarnwick
