// SPDX-License-Identifier: MIT
#include "exchange/json/json_text.h"

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <type_traits>

#include "base/base64.h"
#include "base/text.h"
#include "base/visible_text.h"

namespace tarnwick {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kBase64 = "base64";
constexpr int kIndent = 2;

/// The same value as the library has it. A page may be large: its text is moved.
Json libraryForm(JsonValue value) {
  return std::visit(
      [](auto& content) -> Json {
        using Kind = std::remove_reference_t<decltype(content)>;
        if constexpr (std::is_same_v<Kind, JsonValue::Array>) {
          Json array = Json::array();
          for (JsonValue& element : content) {
            array.push_back(libraryForm(std::move(element)));
          }
          return array;
        } else if constexpr (std::is_same_v<Kind, JsonValue::Object>) {
          Json object = Json::object();
          for (auto& [name, member] : content) {
            object[std::move(name)] = libraryForm(std::move(member));
          }
          return object;
        } else if constexpr (std::is_same_v<Kind, Nothing>) {
          return nullptr;
        } else {
          return Json(std::move(content));
        }
      },
      value.content());
}

// The library escapes what JSON must not hold; a terminal obeys more than that. Such characters stand in texts only.
std::string forTerminals(std::string json) {
  std::string escaped;
  std::size_t copied = 0;
  for (std::size_t at = 0; at < json.size(); ++at) {
    if (static_cast<unsigned char>(json[at]) < 0x7f) {
      continue;
    }
    const auto decoded = decodeUtf8(std::string_view(json).substr(at));
    if (decoded && movesTheCursor(decoded->character)) {
      std::array<char, 7> escape{};
      std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(decoded->character));
      escaped.append(json, copied, at - copied).append(escape.data());
      copied = at + decoded->length;
    }
    at += decoded ? decoded->length - 1 : 0;
  }
  return copied == 0 ? std::move(json) : escaped.append(json, copied);
}

}  // namespace

JsonValue jsonText(std::string_view bytes) {
  if (isUtf8(bytes)) {
    return bytes;
  }
  return {{std::string(kBase64), encodeBase64(bytes)}};
}

std::string bytesOfJson(const JsonValue& value) {
  if (const std::string* text = value.asText()) {
    return *text;
  }
  const auto* const object = value.as<JsonValue::Object>();
  if (object != nullptr && object->size() == 1 && object->front().first == kBase64 &&
      object->front().second.asText() != nullptr) {
    return decodeBase64(*object->front().second.asText());
  }
  throw std::runtime_error(R"(A text is expected: a string, or {"base64": "..."} for bytes that are no UTF-8.)");
}

JsonValue jsonNumber(std::string_view text) {
  const Json number = Json::parse(text, nullptr, false);
  if (number.is_number_unsigned()) {
    return number.get<std::uint64_t>();
  }
  if (number.is_number_integer()) {
    return number.get<std::int64_t>();
  }
  return number.is_number() ? JsonValue(number.get<double>()) : jsonText(text);
}

std::string jsonLine(JsonValue value) { return forTerminals(libraryForm(std::move(value)).dump()); }

std::string jsonLines(JsonValue value) { return forTerminals(libraryForm(std::move(value)).dump(kIndent)); }

}  // namespace tarnwick
