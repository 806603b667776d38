// SPDX-License-Identifier: MIT
// The floor of fetching over https: what libcurl needs for a list of addresses, five at a time, with a new connection
// each and the authorities read once.
//
//   fetch_floor CURL-CONFIG
//
// The `curl` program cannot be told the latter: where it is built with a folder of authorities, as Debian's is, it
// reads all of them again for each connection. The addresses are those of the lines `url = "..."` of its configuration.

#include <curl/curl.h>

#include <cstddef>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int kTogether = 5;

std::vector<std::string> addresses(const char* path) {
  constexpr std::string_view kBefore = "url = \"";
  std::vector<std::string> found;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(kBefore)) {
      found.push_back(line.substr(kBefore.size(), line.size() - kBefore.size() - 1));
    }
  }
  return found;
}

std::size_t drop(char* /*data*/, std::size_t size, std::size_t count, void* /*nothing*/) { return size * count; }

void begin(CURLM* multi, const std::string& address) {
  CURL* easy = curl_easy_init();
  curl_easy_setopt(easy, CURLOPT_URL, address.c_str());
  curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &drop);
  curl_easy_setopt(easy, CURLOPT_FAILONERROR, 1L);
  curl_easy_setopt(easy, CURLOPT_FRESH_CONNECT, 1L);
  curl_easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
  curl_easy_setopt(easy, CURLOPT_SSL_SESSIONID_CACHE, 0L);
  curl_easy_setopt(easy, CURLOPT_CAPATH, nullptr);
  curl_easy_setopt(easy, CURLOPT_CA_CACHE_TIMEOUT, 3600L);
  curl_multi_add_handle(multi, easy);
}

bool fetchAll(CURLM* multi, const std::vector<std::string>& list) {
  std::size_t next = 0;
  int running = 0;
  bool good = true;
  while (next < list.size() || running > 0) {
    for (; next < list.size() && running < kTogether; ++running) {
      begin(multi, list[next++]);
    }
    curl_multi_poll(multi, nullptr, 0, 1000, nullptr);
    curl_multi_perform(multi, &running);
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi, &left)) {
      if (message->data.result != CURLE_OK) {
        std::cerr << curl_easy_strerror(message->data.result) << '\n';
        good = false;
      }
      CURL* done = message->easy_handle;
      curl_multi_remove_handle(multi, done);
      curl_easy_cleanup(done);
    }
  }
  return good;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: fetch_floor CURL-CONFIG\n";
    return 2;
  }
  curl_global_init(CURL_GLOBAL_DEFAULT);
  const std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> multi(curl_multi_init(), &curl_multi_cleanup);
  return fetchAll(multi.get(), addresses(argv[1])) ? 0 : 1;
}
