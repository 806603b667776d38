// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

/// A page for people who want to see about what it looks like: headings, paragraphs, lists and emphasis alone, as HTML
/// without a single attribute, so that nothing of it can be loaded, run or followed. Pictures are their words in
/// brackets; tables are lines. Of deep nesting the tags of the inmost are left out. UTF-8 in, UTF-8 out; what is no
/// HTML comes out as text. Empty where this build has no library for it.
std::string simplifiedPage(std::string_view html);

}  // namespace tarnwick
