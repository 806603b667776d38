// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "holes/generated_page.h"

namespace tarnwick::generated {

/// A slot with the moment of the fetch in a form. In the form stand for it:
///   %Y 2026  %y 26  %m 03  %n 3  %d 09  %e 9  %o the English 9th  %O the French 1er
///   %B and %b the month's names, %A and %a those of the day of the week, in the language of two letters
///   %H 09  %k 9  %I 09  %l 9 (of twelve)  %M %S  %L milliseconds  %p AM  %q am  %P a.m.
///   %z +0100, in summer +0200  %Z the same with a colon  %s and %Q seconds and milliseconds since 1970
/// What breaks it are a day and a month that no calendar has, or an hour where there is no day.
Slot date(std::string_view form, std::string_view language = "en");

/// The moment in that form.
std::string dateText(const Moment& moment, std::string_view form, std::string_view language = "en");

}  // namespace tarnwick::generated
