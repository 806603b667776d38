// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tarnwick {

/// What a page is made of, as far as showing it depends on that.
enum class PageForm {
  utf8,         ///< also pure ASCII, and an empty page
  windows1252,  ///< what is no UTF-8
  utf16Little,
  utf16Big,
  binary,  ///< no text: pictures, programs, archives
};
PageForm pageFormOf(std::string_view page);

/// How many bytes a unit of it takes up: 2 in UTF-16.
inline std::size_t unitOf(PageForm form) { return form == PageForm::utf16Little || form == PageForm::utf16Big ? 2 : 1; }

}  // namespace tarnwick
