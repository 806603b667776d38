// SPDX-License-Identifier: MIT
#include "difference/page_form.h"

#include <algorithm>
#include <cstddef>

#include "base/text.h"
#include "base/utf16_order.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLooked = std::size_t{1} << 16U;
/// One control character in so many bytes makes a page binary.
constexpr std::ptrdiff_t kText = 32;

bool isControl(char byte) {
  return static_cast<unsigned char>(byte) < ' ' &&
         std::string_view("\t\n\r\f\v\x1b").find(byte) == std::string_view::npos;
}

bool isBinary(std::string_view page) {
  constexpr std::string_view kBeginnings[] = {"\x89PNG\r\n", "\xFF\xD8\xFF", "GIF8",   "%PDF-",
                                              "PK\x03\x04",  "\x1F\x8B",     "\177ELF"};
  const std::string_view begin = page.substr(0, kLooked);
  return std::ranges::any_of(kBeginnings, [&](std::string_view beginning) { return page.starts_with(beginning); }) ||
         std::ranges::count_if(begin, &isControl) * kText > static_cast<std::ptrdiff_t>(begin.size());
}

}  // namespace

PageForm pageFormOf(std::string_view page) {
  if (const auto high = utf16HighBytes(page)) {
    return *high == 0 ? PageForm::utf16Big : PageForm::utf16Little;
  }
  if (isBinary(page)) {
    return PageForm::binary;
  }
  return isUtf8(page) ? PageForm::utf8 : PageForm::windows1252;
}

}  // namespace tarnwick
