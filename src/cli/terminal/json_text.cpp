#include "cli/terminal/json_text.h"

#include <ostream>
#include <stdexcept>

#include "base/base64.h"
#include "base/sql_value.h"
#include "base/text.h"

namespace tarnwick {

namespace {
constexpr const char* kBase64 = "base64";
}

Json jsonText(std::string_view bytes) {
  if (isUtf8(bytes)) {
    return bytes;
  }
  return Json::object({{kBase64, encodeBase64(bytes)}});
}

std::string bytesOfJson(const Json& value) {
  if (value.is_string()) {
    return value.get<std::string>();
  }
  if (value.is_object() && value.size() == 1 && value.contains(kBase64) && value[kBase64].is_string()) {
    return decodeBase64(value[kBase64].get_ref<const std::string&>());
  }
  throw std::runtime_error(R"(A text is expected: a string, or {"base64": "..."} for bytes that are no UTF-8.)");
}

Json jsonCell(const std::string& cell) { return cell == kNullText ? Json() : jsonText(cell); }

void sayJson(Console& console, const Json& value) { console.say(value.dump(2)); }

void JsonArray::add(const Json& value) {
  console_.out() << (begun_ ? ",\n " : "[\n ") << value.dump();
  begun_ = true;
}

void JsonArray::end() { console_.say(begun_ ? "\n]" : "[]"); }

}  // namespace tarnwick
