#include "store/sql_quote.h"

#include <algorithm>

namespace tarnwick {

std::string sqlQuote(std::string_view text) {
  const auto quotes = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\''));
  if (quotes == 0) {
    return std::string(text);
  }
  std::string quoted;
  quoted.reserve(text.size() + quotes);
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t quote = text.find('\'', from);
    if (quote == std::string_view::npos) {
      quoted.append(text.substr(from));
      break;
    }
    quoted.append(text.substr(from, quote - from + 1));
    quoted.push_back('\'');
    from = quote + 1;
  }
  return quoted;
}

}  // namespace tarnwick
