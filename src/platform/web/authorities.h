// SPDX-License-Identifier: MIT
#pragma once

#include <curl/curl.h>

#include <string>

namespace tarnwick {

/// Lets the certificate authorities of the transfer `easy` be read once an hour for all transfers of its multi handle,
/// rather than for each of them: the file `file`, or the system's when that is empty. libcurl does so only where no
/// folder of authorities is named (CURLOPT_CA_CACHE_TIMEOUT), so none is; `trustFolder` takes its place.
/// Where certificates are not OpenSSL's affair nothing is changed.
void shareAuthorities(CURL* easy, const std::string& file);

/// From within the handshake of such a transfer: trusts what lies in `folder`, by hashed names as `openssl rehash`
/// makes them, or in the system's when that is empty, as well. `context` is what CURLOPT_SSL_CTX_FUNCTION is given. The
/// folder is looked into only for an authority that the file does not hold.
void trustFolder(void* context, const std::string& folder);

}  // namespace tarnwick
