// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "base/nothing.h"

namespace tarnwick {

/// A value of JSON whose members keep their order: `JsonValue{{"idSite", 3}, {"url", jsonText(url)}}`. Texts are UTF-8;
/// other bytes go through `jsonText`. It knows nothing of the library that reads and writes it.
class JsonValue {
 public:
  using Array = std::vector<JsonValue>;
  using Member = std::pair<std::string, JsonValue>;
  using Object = std::vector<Member>;
  using Content = std::variant<Nothing, bool, std::int64_t, std::uint64_t, double, std::string, Array, Object>;

  /// null
  JsonValue() = default;
  JsonValue(std::nullptr_t) {}
  JsonValue(bool flag) : content_(flag) {}
  template <std::signed_integral Number>
  JsonValue(Number number) : content_(std::int64_t{number}) {}
  template <std::unsigned_integral Number>
  requires(!std::same_as<Number, bool>) JsonValue(Number number) : content_(std::uint64_t{number}) {}
  JsonValue(double number) : content_(number) {}
  JsonValue(const char* text) : content_(std::string(text)) {}
  JsonValue(std::string_view text) : content_(std::string(text)) {}
  JsonValue(std::string text) : content_(std::move(text)) {}
  JsonValue(std::initializer_list<Member> members);

  static JsonValue array() { return JsonValue(Content(Array())); }
  static JsonValue array(const std::vector<std::string>& texts);
  static JsonValue object() { return JsonValue(Content(Object())); }

  bool isNull() const { return std::holds_alternative<Nothing>(content_); }
  bool isInteger() const {
    return std::holds_alternative<std::int64_t>(content_) || std::holds_alternative<std::uint64_t>(content_);
  }
  /// The value as one of its kinds; nothing when it is another.
  template <typename Kind>
  const Kind* as() const {
    return std::get_if<Kind>(&content_);
  }
  template <typename Kind>
  Kind* as() {
    return std::get_if<Kind>(&content_);
  }
  const std::string* asText() const { return as<std::string>(); }
  const Content& content() const { return content_; }
  Content& content() { return content_; }

  /// The member of that name; nothing when there is none, or when this is no object.
  const JsonValue* find(std::string_view name) const;
  /// The same, added as null behind the others when there is none. REQUIRES: an object.
  JsonValue& operator[](std::string_view name);
  /// Adds a value behind the others. REQUIRES: an array.
  JsonValue& add(JsonValue value);

 private:
  explicit JsonValue(Content content) : content_(std::move(content)) {}

  Content content_{};
};

}  // namespace tarnwick
