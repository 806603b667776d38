// SPDX-License-Identifier: MIT
#include "app/window_arguments.h"

#include <algorithm>
#include <string_view>

#include "base/visible_text.h"

namespace tarnwick {
namespace {

constexpr const char* kHelp =
    "Usage: tarnwick [OPTIONS]\n"
    "\n"
    "Opens the window of Tarnwick, which watches web pages for changes of their content.\n"
    "\n"
    "Options:\n"
    "  -h, --help     Print this text and end\n"
    "  --version      Print the version and end\n"
    "\n"
    "Options of the Qt toolkit, for instance -style, -platform and -display, are understood.\n"
    "In a terminal the same work is done by: tarnwickctl";

// Of the toolkit's options those that stand before a value, and those that stand alone.
constexpr std::string_view kWithValue[] = {
    "display",       "fontengine",   "geometry",      "icon",    "name",  "platform",   "platformpluginpath",
    "platformtheme", "plugin",       "qmljsdebugger", "session", "style", "stylesheet", "qwindowgeometry",
    "qwindowicon",   "qwindowtitle", "title"};
constexpr std::string_view kAlone[] = {"dograb", "nograb", "reverse", "widgetcount"};

bool isOneOf(const auto& names, std::string_view name) { return std::ranges::find(names, name) != std::end(names); }

}  // namespace

std::optional<WindowAnswer> answerTo(const std::vector<std::string>& arguments) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--version") {
      return WindowAnswer{std::string("tarnwick ") + TARNWICK_VERSION};
    }
    if (argument == "-h" || argument == "--help") {
      return WindowAnswer{kHelp};
    }
    const std::string_view name =
        argument.starts_with('-') ? std::string_view(argument).substr(argument.starts_with("--") ? 2 : 1) : "";
    const std::size_t equals = name.find('=');
    if (equals != std::string_view::npos && isOneOf(kWithValue, name.substr(0, equals))) {
      continue;
    }
    if (isOneOf(kWithValue, name) && i + 1 < arguments.size()) {
      ++i;
    } else if (!isOneOf(kAlone, name)) {
      return WindowAnswer{"tarnwick: There is no option \"" + visibleText(argument) + "\". See: tarnwick --help", true};
    }
  }
  return std::nullopt;
}

}  // namespace tarnwick
