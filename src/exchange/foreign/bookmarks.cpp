// SPDX-License-Identifier: MIT
#include <libxml/HTMLparser.h>
#include <libxml/SAX2.h>

#include <algorithm>
#include <exception>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "base/text.h"
#include "exchange/foreign/foreign_sites.h"
#include "exchange/foreign/markup.h"

namespace tarnwick {
namespace {

// More of a title or a description is not shown.
constexpr std::size_t kLongestText = 1000;
constexpr std::size_t kChunk = std::size_t{1} << 20U;

using Attributes = std::map<std::string, std::string, std::less<>>;

/// Takes the bookmarks out of the elements of the file: <dl> is a folder, the <h3> before it its name, <a> a bookmark,
/// <dd> behind it its description.
class BookmarkReader {
 public:
  explicit BookmarkReader(ForeignSites& sites) : sites_(sites) {}

  void begin(std::string_view element, const Attributes& attributes, std::size_t line) {
    if (element == "a" || element == "h3" || element == "dl" || element == "dt") {
      endBookmark();
    }
    if (element == "dl") {
      folders_.push_back(std::exchange(name_, {}));
    } else if (element == "a") {
      beginBookmark(attributes, line);
      text_ = &title_;
    } else if (element == "h3") {
      name_.clear();
      text_ = &name_;
    } else if (element == "dd") {
      text_ = &description_;
    }
  }

  void end(std::string_view element) {
    if (element == "dl") {
      endBookmark();
      if (!folders_.empty()) {
        folders_.pop_back();
      }
    }
    if (element == "a" || element == "h3" || element == "dd") {
      text_ = nullptr;
    }
  }

  void text(std::string_view piece) {
    if (text_ != nullptr && text_->size() < kLongestText) {
      *text_ += piece;
    }
  }

  void finish() {
    endBookmark();
    if (bookkeeping_) {
      sites_.lacks("the dates and icons of the bookmarks");
    }
  }

 private:
  void beginBookmark(const Attributes& attributes, std::size_t line) {
    const auto of = [&](std::string_view name) {
      const auto found = attributes.find(name);
      return found == attributes.end() ? std::string_view() : std::string_view(found->second);
    };
    title_.clear();
    description_.clear();
    bookmark_.emplace(line, of("href"));
    further_.clear();
    for (const auto& [name, what] : std::initializer_list<std::pair<std::string_view, std::string>>{
             {"tags", "tags"}, {"shortcuturl", "keyword"}, {"post_data", "post data"}, {"feedurl", "feed"}}) {
      further_.emplace_back(what, std::string(of(name)));
    }
    bookkeeping_ = bookkeeping_ || std::ranges::any_of(attributes, [](const auto& attribute) {
                     return attribute.first == "icon" || attribute.first == "icon_uri" ||
                            attribute.first == "add_date" || attribute.first == "last_modified" ||
                            attribute.first == "last_visit";
                   });
  }

  void endBookmark() {
    if (!bookmark_) {
      return;
    }
    ForeignSite site = std::move(*bookmark_);
    bookmark_.reset();
    text_ = nullptr;
    site.lacks("title", title_);
    std::string folder;
    for (const std::string& name : folders_) {
      if (const std::string_view shown = trimmed(name); !shown.empty()) {
        folder += (folder.empty() ? "" : " / ") + std::string(shown);
      }
    }
    site.lacks("folder", folder);
    for (const auto& [what, value] : further_) {
      site.lacks(what, value);
    }
    site.lacks("description", description_);
    sites_.add(std::move(site));
  }

  ForeignSites& sites_;
  std::vector<std::string> folders_;
  std::string name_;  // of the folder that begins next
  std::optional<ForeignSite> bookmark_;
  std::string title_;
  std::string description_;
  std::vector<std::pair<std::string, std::string>> further_;
  std::string* text_ = nullptr;
  bool bookkeeping_ = false;
};

/// What the library calls. Nothing is raised through it: the first failure is kept, and nothing is done after it.
struct Calls {
  explicit Calls(ForeignSites& sites) : reader(sites) {}

  template <typename Do>
  void guarded(const Do& action) {
    if (failure == nullptr) {
      try {
        action();
      } catch (...) {
        failure = std::current_exception();
        xmlStopParser(parser);
      }
    }
  }

  static void begin(void* self, const xmlChar* element, const xmlChar** attributes) {
    auto& calls = *static_cast<Calls*>(self);
    calls.guarded([&] {
      Attributes given;
      for (const xmlChar** at = attributes; at != nullptr && *at != nullptr; at += 2) {
        given.emplace(lowerCase(textOf(at[0])), textOf(at[1]));
      }
      calls.reader.begin(lowerCase(textOf(element)), given,
                         static_cast<std::size_t>(std::max(0, xmlSAX2GetLineNumber(calls.parser))));
    });
  }
  static void end(void* self, const xmlChar* element) {
    auto& calls = *static_cast<Calls*>(self);
    calls.guarded([&] { calls.reader.end(lowerCase(textOf(element))); });
  }
  static void characters(void* self, const xmlChar* text, int length) {
    auto& calls = *static_cast<Calls*>(self);
    calls.guarded([&] { calls.reader.text({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)}); });
  }

  BookmarkReader reader;
  htmlParserCtxtPtr parser = nullptr;
  std::exception_ptr failure;
};

struct ParserFree {
  void operator()(htmlParserCtxt* parser) const { htmlFreeParserCtxt(parser); }
};

std::size_t countOf(std::string_view text, std::string_view word) {
  std::size_t count = 0;
  for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + word.size())) {
    ++count;
  }
  return count;
}

// HTML ends wherever it likes, but the lists in lists of such a file are all closed.
void requireWhole(std::string_view text) {
  const std::string small = lowerCase(std::string(text));
  if (countOf(small, "<dl>") > countOf(small, "</dl>")) {
    throw ForeignError(static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1,
                       "the file breaks off here: a folder of it has no end. Export the bookmarks anew");
  }
}

}  // namespace

void readBookmarks(std::string_view text, ForeignSites& sites) {
  if (text.find('\0') != std::string_view::npos) {
    throw ForeignError(0, "the file holds NUL bytes, so these are no bookmarks: export them as HTML");
  }
  requireWhole(text);
  Calls calls(sites);
  htmlSAXHandler handler{};
  handler.startElement = &Calls::begin;
  handler.endElement = &Calls::end;
  handler.characters = &Calls::characters;
  handler.ignorableWhitespace = &Calls::characters;
  // Browsers write UTF-8; what is something else says so itself.
  const xmlCharEncoding encoding = isUtf8(text) ? XML_CHAR_ENCODING_UTF8 : XML_CHAR_ENCODING_NONE;
  const std::unique_ptr<htmlParserCtxt, ParserFree> parser(
      htmlCreatePushParserCtxt(&handler, &calls, nullptr, 0, nullptr, encoding));
  if (parser == nullptr) {
    throw std::bad_alloc();
  }
  calls.parser = parser.get();
  htmlCtxtUseOptions(parser.get(), HTML_PARSE_NONET | HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING);
  while (!text.empty() && calls.failure == nullptr) {
    const std::string_view chunk = text.substr(0, kChunk);
    htmlParseChunk(parser.get(), chunk.data(), static_cast<int>(chunk.size()), 0);
    text.remove_prefix(chunk.size());
  }
  if (calls.failure == nullptr) {
    htmlParseChunk(parser.get(), nullptr, 0, 1);
    calls.guarded([&] { calls.reader.finish(); });
  }
  if (calls.failure != nullptr) {
    std::rethrow_exception(calls.failure);
  }
}

}  // namespace tarnwick
