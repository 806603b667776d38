// SPDX-License-Identifier: MIT
#include "exchange/json/json_value.h"

#include <algorithm>

namespace tarnwick {

JsonValue::JsonValue(std::initializer_list<Member> members) : content_(Object(members)) {}

JsonValue JsonValue::array(const std::vector<std::string>& texts) {
  return JsonValue(Content(Array(texts.begin(), texts.end())));
}

const JsonValue* JsonValue::find(std::string_view name) const {
  const auto* const members = as<Object>();
  if (members == nullptr) {
    return nullptr;
  }
  const auto found = std::ranges::find(*members, name, &Member::first);
  return found == members->end() ? nullptr : &found->second;
}

JsonValue& JsonValue::operator[](std::string_view name) {
  auto& members = std::get<Object>(content_);
  const auto found = std::ranges::find(members, name, &Member::first);
  return found == members.end() ? members.emplace_back(std::string(name), JsonValue()).second : found->second;
}

JsonValue& JsonValue::add(JsonValue value) { return std::get<Array>(content_).emplace_back(std::move(value)); }

}  // namespace tarnwick
