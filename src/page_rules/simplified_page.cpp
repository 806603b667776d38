// SPDX-License-Identifier: MIT
#include "page_rules/simplified_page.h"

#include <libxml/HTMLparser.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>

namespace tarnwick {
namespace {

constexpr std::size_t kDeepest = 12;

constexpr std::array<std::string_view, 21> kKept{"h1",     "h2",  "h3",   "h4",  "h5",    "h6",         "p",
                                                 "ul",     "ol",  "li",   "b",   "i",     "em",         "u",
                                                 "strong", "pre", "code", "sub", "small", "blockquote", "sup"};
/// What they hold is not seen.
constexpr std::array<std::string_view, 10> kLeftOut{"script", "style", "title",  "template", "noscript",
                                                    "svg",    "head",  "iframe", "object",   "select"};
/// They begin a line of their own.
constexpr std::array<std::string_view, 19> kLines{
    "br",  "hr",   "div",   "tr", "table", "section", "article", "main",     "header", "footer",
    "nav", "form", "aside", "dt", "dd",    "address", "caption", "fieldset", "figure"};

bool contains(const auto& names, std::string_view name) { return std::ranges::find(names, name) != names.end(); }

std::string_view textOf(const xmlChar* text) {
  return text == nullptr ? std::string_view() : std::string_view(reinterpret_cast<const char*>(text));
}

void appendEscaped(std::string& html, std::string_view text) {
  for (const char letter : text) {
    letter == '<' ? html += "&lt;" : letter == '>' ? html += "&gt;" : letter == '&' ? html += "&amp;" : html += letter;
  }
}

/// Writes what is below a node, without recursion: pages may be nested as deep as they like.
class Simplifier {
 public:
  std::string simplify(const xmlNode* root) {
    for (const xmlNode* node = root; node != nullptr;) {
      const bool goesIn = begin(*node);
      if (goesIn && node->children != nullptr) {
        node = node->children;
        continue;
      }
      end(*node);
      while (node != root && node->next == nullptr && node->parent != nullptr) {
        node = node->parent;
        end(*node);
        if (node == root) {
          return std::move(html_);
        }
      }
      node = node == root ? nullptr : node->next;
    }
    return std::move(html_);
  }

 private:
  bool begin(const xmlNode& node) {
    if (node.type == XML_TEXT_NODE || node.type == XML_CDATA_SECTION_NODE) {
      appendEscaped(html_, textOf(node.content));
      return false;
    }
    const std::string_view name = textOf(node.name);
    if (node.type != XML_ELEMENT_NODE || contains(kLeftOut, name)) {
      return false;
    }
    if (contains(kKept, name)) {
      if (++depth_ <= kDeepest) {
        html_.append("<").append(name).append(">");
      }
    } else if (contains(kLines, name)) {
      html_ += "<br>";
    } else if (name == "td" || name == "th") {
      html_ += " &#160; ";
    } else if (name == "img") {
      addPicture(node);
    }
    return true;
  }

  void end(const xmlNode& node) {
    const std::string_view name = textOf(node.name);
    if (node.type == XML_ELEMENT_NODE && contains(kKept, name) && depth_-- <= kDeepest) {
      html_.append("</").append(name).append(">");
    }
  }

  void addPicture(const xmlNode& node) {
    const std::unique_ptr<xmlChar, decltype(xmlFree)> words(
        xmlGetProp(const_cast<xmlNode*>(&node), reinterpret_cast<const xmlChar*>("alt")), xmlFree);
    if (words != nullptr && *words != 0) {
      html_ += '[';
      appendEscaped(html_, textOf(words.get()));
      html_ += ']';
    }
  }

  std::string html_;
  std::size_t depth_ = 0;
};

}  // namespace

std::string simplifiedPage(std::string_view html) {
  const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> page(
      htmlReadMemory(html.data(), static_cast<int>(html.size()), nullptr, "UTF-8",
                     HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET),
      &xmlFreeDoc);
  const xmlNode* const root = page == nullptr ? nullptr : xmlDocGetRootElement(page.get());
  return root == nullptr ? std::string() : Simplifier().simplify(root);
}

}  // namespace tarnwick
