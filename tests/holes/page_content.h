// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// What of a generated page never varies: the same for the same seed.
namespace tarnwick::generated {

/// Sentences in a language by its two letters.
std::string prose(std::string_view seed, std::string_view language, int sentences);
/// A list of links.
std::string navigation(std::string_view seed, std::string_view language);
/// Headings with paragraphs, some with a table or a list.
std::string articles(std::string_view seed, std::string_view language, int count);

/// A page with places for what varies, which is empty where it is not named.
struct Document {
  std::string_view seed;
  std::string_view language = "en";
  int articles = 4;
  std::string head{};    ///< within the head, behind the style sheets
  std::string top{};     ///< before the articles
  std::string middle{};  ///< between them
  std::string bottom{};  ///< behind them
  std::string foot{};    ///< the last of the body
};
std::string text(const Document& document);

/// One of the characters for another everywhere: line ends, most often.
std::string replaced(std::string text, std::string_view what, std::string_view by);

}  // namespace tarnwick::generated
