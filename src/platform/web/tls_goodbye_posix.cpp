// SPDX-License-Identifier: MIT
#include "platform/web/tls_goodbye.h"

#include <openssl/ssl.h>

#include "platform/web/tls_library.h"

namespace tarnwick {
namespace {

/// Where a context keeps the place that is told.
int placeInContext() {
  static const int index = SSL_CTX_get_ex_new_index(0, nullptr, nullptr, nullptr, nullptr);
  return index;
}

void onNews(const SSL* connection, int where, int alert) {
  constexpr int kDescription = 0xff;
  if (where == SSL_CB_READ_ALERT && (alert & kDescription) == SSL_AD_CLOSE_NOTIFY) {
    if (auto* const said = static_cast<bool*>(SSL_CTX_get_ex_data(SSL_get_SSL_CTX(connection), placeInContext()))) {
      *said = true;
    }
  }
}

}  // namespace

bool watchGoodbye(void* context, bool& said) {
  auto* const tls = static_cast<SSL_CTX*>(context);
  said = false;
  if (!usesOpenSsl() || SSL_CTX_set_ex_data(tls, placeInContext(), &said) != 1) {
    return false;
  }
  SSL_CTX_set_info_callback(tls, &onNews);
  return true;
}

}  // namespace tarnwick
