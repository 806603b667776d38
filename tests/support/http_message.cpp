// SPDX-License-Identifier: MIT
#include "support/http_message.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <map>
#include <QByteArray>
#include <QCryptographicHash>

namespace tarnwick::testing {
namespace {

constexpr const char* kLineEnd = "\r\n";
constexpr const char* kRealm = "test realm";
constexpr const char* kNonce = "0123456789abcdef";

std::string lowered(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return result;
}

std::string trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\"");
  if (first == std::string_view::npos) {
    return {};
  }
  return std::string(text.substr(first, text.find_last_not_of(" \t\"") - first + 1));
}

std::string reason(int status) {
  static const std::map<int, std::string> reasons{{200, "OK"},        {204, "No Content"},   {301, "Moved Permanently"},
                                                  {302, "Found"},     {303, "See Other"},    {401, "Unauthorized"},
                                                  {404, "Not Found"}, {500, "Server Error"}, {503, "Unavailable"}};
  const auto found = reasons.find(status);
  return found == reasons.end() ? "Status" : found->second;
}

std::string md5(const std::string& text) {
  return QCryptographicHash::hash(QByteArray::fromStdString(text), QCryptographicHash::Md5).toHex().toStdString();
}

std::uint32_t crc32(const std::string& data) {
  std::uint32_t crc = 0xFFFFFFFFU;
  for (const unsigned char byte : data) {
    crc ^= byte;
    for (int bit = 0; bit < 8; ++bit) {
      crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
  }
  return ~crc;
}

void appendLittleEndian(std::string& text, std::uint32_t number) {
  for (int shift = 0; shift < 32; shift += 8) {
    text.push_back(static_cast<char>((number >> static_cast<unsigned>(shift)) & 0xFFU));
  }
}

std::string chunkedBody(const std::string& body) {
  constexpr std::size_t kPiece = 1000;
  std::string result;
  for (std::size_t at = 0; at < body.size(); at += kPiece) {
    const std::string piece = body.substr(at, kPiece);
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), piece.size(), 16).ptr;
    result.append(digits.data(), end).append(kLineEnd).append(piece).append(kLineEnd);
  }
  return result + "0\r\n\r\n";
}

// The parameters of an Authorization header, by name.
std::map<std::string, std::string> parameters(std::string_view header) {
  std::map<std::string, std::string> result;
  header.remove_prefix(std::min(header.find(' '), header.size()));
  while (!header.empty()) {
    const auto comma = std::min(header.find(','), header.size());
    const auto part = header.substr(0, comma);
    const auto equals = part.find('=');
    if (equals != std::string_view::npos) {
      result[trimmed(part.substr(0, equals))] = trimmed(part.substr(equals + 1));
    }
    header.remove_prefix(std::min(comma + 1, header.size()));
  }
  return result;
}

}  // namespace

std::string HttpRequest::path() const { return target.substr(0, target.find('?')); }

std::string HttpRequest::header(std::string_view name) const {
  const auto found =
      std::ranges::find_if(headers, [&](const auto& line) { return lowered(line.first) == lowered(name); });
  return found == headers.end() ? std::string() : found->second;
}

bool HttpRequest::hasHeader(std::string_view name) const {
  return std::ranges::any_of(headers, [&](const auto& line) { return lowered(line.first) == lowered(name); });
}

HttpResponse HttpResponse::redirect(const std::string& location, int status) {
  return {.status = status, .headers = {{"Location", location}}};
}

std::optional<HttpRequest> takeRequest(std::string& buffer) {
  const auto headEnd = buffer.find("\r\n\r\n");
  if (headEnd == std::string::npos) {
    return std::nullopt;
  }
  HttpRequest request;
  std::size_t at = buffer.find(kLineEnd);
  const std::string first = buffer.substr(0, at);
  request.method = first.substr(0, first.find(' '));
  request.target = first.substr(first.find(' ') + 1);
  request.target = request.target.substr(0, request.target.find(' '));
  while (at < headEnd) {
    const auto start = at + 2;
    at = buffer.find(kLineEnd, start);
    const std::string line = buffer.substr(start, at - start);
    const auto colon = std::min(line.find(':'), line.size() - 1);
    request.headers.emplace_back(line.substr(0, colon), trimmed(line.substr(colon + 1)));
  }
  const std::string length = request.header("Content-Length");
  const std::size_t bodySize = length.empty() ? 0 : static_cast<std::size_t>(std::stoull(length));
  if (buffer.size() < headEnd + 4 + bodySize) {
    return std::nullopt;
  }
  request.body = buffer.substr(headEnd + 4, bodySize);
  request.wire = buffer.substr(0, headEnd + 4 + bodySize);
  buffer.erase(0, request.wire.size());
  return request;
}

std::string compressed(const std::string& body, HttpCoding coding) {
  if (coding == HttpCoding::none) {
    return body;
  }
  // qCompress puts its own length of four bytes before a zlib stream.
  const std::string zlib = qCompress(QByteArray::fromStdString(body)).toStdString().substr(4);
  if (coding == HttpCoding::deflate) {
    return zlib;
  }
  std::string gzip("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10);
  gzip += zlib.substr(2, zlib.size() - 6);
  appendLittleEndian(gzip, crc32(body));
  appendLittleEndian(gzip, static_cast<std::uint32_t>(body.size()));
  return gzip;
}

WireAnswer wireAnswer(const HttpRequest& request, const HttpResponse& response) {
  if (!response.raw.empty()) {
    return {.head = response.raw, .body = {}, .closeAfter = true};
  }
  const bool bodiless = request.method == "HEAD" || response.status == 204 || response.status == 304;
  std::string body = compressed(response.body, response.coding);
  WireAnswer answer;
  answer.head = "HTTP/1.1 " + std::to_string(response.status) + " " + reason(response.status) + kLineEnd;
  bool typed = false;
  for (const auto& [name, value] : response.headers) {
    typed = typed || lowered(name) == "content-type";
    answer.head += name + ": " + value + kLineEnd;
  }
  if (!typed) {
    answer.head += "Content-Type: text/html\r\n";
  }
  if (response.coding != HttpCoding::none) {
    answer.head += response.coding == HttpCoding::gzip ? "Content-Encoding: gzip\r\n" : "Content-Encoding: deflate\r\n";
  }
  answer.head +=
      response.chunked ? "Transfer-Encoding: chunked\r\n" : "Content-Length: " + std::to_string(body.size()) + kLineEnd;
  answer.closeAfter = response.close || response.missingBytes > 0;
  if (answer.closeAfter) {
    answer.head += "Connection: close\r\n";
  }
  answer.head += kLineEnd;
  if (!bodiless) {
    answer.body = response.chunked ? chunkedBody(body) : std::move(body);
    answer.body.resize(answer.body.size() - std::min(response.missingBytes, answer.body.size()));
  }
  return answer;
}

bool basicAnswered(const HttpRequest& request, const std::string& userName, const std::string& password) {
  const auto token = QByteArray::fromStdString(userName + ":" + password).toBase64().toStdString();
  return request.header("Authorization") == "Basic " + token;
}

bool digestAnswered(const HttpRequest& request, const std::string& userName, const std::string& password) {
  const std::string header = request.header("Authorization");
  if (!header.starts_with("Digest ")) {
    return false;
  }
  auto given = parameters(header);
  const std::string secret = md5(userName + ":" + kRealm + ":" + password);
  const std::string what = md5(request.method + ":" + request.target);
  return given["username"] == userName && given["uri"] == request.target &&
         given["response"] == md5(secret + ":" + kNonce + ":" + given["nc"] + ":" + given["cnonce"] + ":auth:" + what);
}

HttpResponse basicChallenge() {
  return {.status = 401,
          .headers = {{"WWW-Authenticate", std::string("Basic realm=\"") + kRealm + "\""}},
          .body = "credentials, please"};
}

HttpResponse digestChallenge() {
  return {.status = 401,
          .headers = {{"WWW-Authenticate",
                       std::string("Digest realm=\"") + kRealm + "\", qop=\"auth\", nonce=\"" + kNonce + "\""}},
          .body = "credentials, please"};
}

}  // namespace tarnwick::testing
