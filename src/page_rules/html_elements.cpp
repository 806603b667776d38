// SPDX-License-Identifier: MIT
#include "page_rules/html_elements.h"

#include <libxml/HTMLparser.h>
#include <libxml/SAX2.h>

#include <cstdint>
#include <limits>
#include <new>

#include "base/text.h"

namespace tarnwick {
namespace {

struct ParserFree {
  void operator()(htmlParserCtxt* parser) const { htmlFreeParserCtxt(parser); }
};

std::string_view viewOf(const xmlChar* text) { return reinterpret_cast<const char*>(text); }

bool isNamePart(char c) {
  return isLetter(c) || isDigit(c) || std::string_view("-_:.").find(c) != std::string_view::npos;
}

/// The parser compares each attribute of a tag with all others of it.
constexpr std::size_t kMostAttributes = 250;

/// Where the tag that begins at this place ends; nothing when it has more attributes than any that people write.
std::optional<std::size_t> endOfTag(std::string_view page, std::size_t tag) {
  std::size_t attributes = 0;
  std::size_t at = page.find_first_of(" \t\r\n/>", tag);
  for (; at < page.size() && page[at] != '>'; ++attributes) {
    at = page.find_first_not_of(" \t\r\n/", at);
    at = page.find_first_of(" \t\r\n=>", at);
    at = page.find_first_not_of(kWhiteSpace, at);
    if (at < page.size() && page[at] == '=') {
      at = page.find_first_not_of(kWhiteSpace, at + 1);
      const bool isQuoted = at < page.size() && (page[at] == '"' || page[at] == '\'');
      at = isQuoted ? page.find(page[at], at + 1) : page.find_first_of(" \t\r\n>", at);
      at += isQuoted && at < page.size() ? 1U : 0U;
    }
    if (attributes == kMostAttributes) {
      return std::nullopt;
    }
  }
  return std::min(at, page.size());
}

bool hasCrowdedTag(std::string_view page) {
  for (std::size_t at = page.find('<'); at < page.size(); at = page.find('<', at)) {
    const bool isTag = at + 1 < page.size() && isLetter(page[at + 1]);
    const auto end = isTag ? endOfTag(page, at) : at + 1;
    if (!end) {
      return true;
    }
    at = *end;
  }
  return false;
}

}  // namespace

/// What the parser tells, with the place in the page at which it tells it.
struct HtmlEvents {
  HtmlElements& elements;
  std::string_view page;
  std::size_t told = 0;  ///< the end of what has been told so far

  static HtmlEvents& of(void* context) {
    return *static_cast<HtmlEvents*>(static_cast<htmlParserCtxt*>(context)->_private);
  }

  std::size_t place(const htmlParserCtxt* parser) const {
    const long consumed = xmlByteConsumed(const_cast<htmlParserCtxt*>(parser));
    return std::min(page.size(), consumed < 0 ? std::size_t{0} : static_cast<std::size_t>(consumed));
  }

  /// The tag of that name between what was told and where the parser stands; nothing for an element that is implied.
  std::optional<std::size_t> tagBetween(std::string_view opening, std::string_view name, std::size_t to) const {
    const std::string_view read = page.substr(0, to);
    for (std::size_t at = read.find(opening, told); at != std::string_view::npos; at = read.find(opening, at + 1)) {
      const std::size_t begin = at + opening.size();
      if (equalsIgnoringCase(page.substr(begin, name.size()), name) &&
          (begin + name.size() >= page.size() || !isNamePart(page[begin + name.size()]))) {
        return at;
      }
    }
    return std::nullopt;
  }

  // The parser stands before the > of the tag, or behind its name where the element is implied by it.
  static void start(void* context, const xmlChar* name, const xmlChar** attributes) {
    auto* const parser = static_cast<htmlParserCtxt*>(context);
    HtmlEvents& events = of(context);
    xmlSAX2StartElement(context, name, attributes);
    const std::size_t at = events.place(parser);
    const auto tag = events.tagBetween("<", viewOf(name), at);
    auto& ranges = events.elements.ranges_;
    ranges.push_back(tag ? ByteRange{*tag, at} : ByteRange{});
    if (parser->node != nullptr) {
      parser->node->_private = reinterpret_cast<void*>(static_cast<std::uintptr_t>(ranges.size()));
    }
    if (tag) {
      events.told = at;
    }
  }

  static void end(void* context, const xmlChar* name) {
    auto* const parser = static_cast<htmlParserCtxt*>(context);
    HtmlEvents& events = of(context);
    const std::size_t at = events.place(parser);
    if (parser->node != nullptr && parser->node->_private != nullptr) {
      ByteRange& range = events.elements.ranges_[reinterpret_cast<std::uintptr_t>(parser->node->_private) - 1];
      if (range.end > range.begin) {
        range.end = events.endOf(range, viewOf(name), at);
        events.told = std::max(events.told, range.end);
      }
    }
    xmlSAX2EndElement(context, name);
  }

  /// Behind its closing tag; of an element that has none, behind what was told last.
  std::size_t endOf(const ByteRange& range, std::string_view name, std::size_t at) const {
    if (const auto tag = tagBetween("</", name, at)) {
      const std::size_t close = page.find('>', *tag);
      return close == std::string_view::npos ? page.size() : close + 1;
    }
    std::size_t end = std::max(told, range.end);
    if (end == range.end) {  // nothing in it: the > of its own tag
      const std::size_t close = page.find('>', end);
      end = close == std::string_view::npos ? page.size() : close + 1;
    }
    return end;
  }

  void tell(const htmlParserCtxt* parser) { told = std::max(told, place(parser)); }
  static void characters(void* context, const xmlChar* text, int length) {
    xmlSAX2Characters(context, text, length);
    of(context).tell(static_cast<htmlParserCtxt*>(context));
  }
  static void cdata(void* context, const xmlChar* text, int length) {
    xmlSAX2CDataBlock(context, text, length);
    of(context).tell(static_cast<htmlParserCtxt*>(context));
  }
  static void comment(void* context, const xmlChar* text) {
    xmlSAX2Comment(context, text);
    of(context).tell(static_cast<htmlParserCtxt*>(context));
  }
};

HtmlElements::HtmlElements(std::string_view page) {
  if (page.empty() || page.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()) || hasCrowdedTag(page)) {
    return;
  }
  const std::unique_ptr<htmlParserCtxt, ParserFree> parser(
      htmlCreateMemoryParserCtxt(page.data(), static_cast<int>(page.size())));
  if (!parser) {
    throw std::bad_alloc();
  }
  htmlCtxtUseOptions(parser.get(), HTML_PARSE_RECOVER | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET |
                                       HTML_PARSE_IGNORE_ENC);
  HtmlEvents events{*this, page};
  parser->_private = &events;
  parser->sax->startElement = &HtmlEvents::start;
  parser->sax->endElement = &HtmlEvents::end;
  parser->sax->characters = &HtmlEvents::characters;
  parser->sax->ignorableWhitespace = &HtmlEvents::characters;
  parser->sax->cdataBlock = &HtmlEvents::cdata;
  parser->sax->comment = &HtmlEvents::comment;
  parser->sax->processingInstruction = nullptr;
  htmlParseDocument(parser.get());
  document_.reset(parser->myDoc);
  parser->myDoc = nullptr;
}

std::optional<ByteRange> HtmlElements::rangeOf(const xmlNode* node) const {
  while (node != nullptr && node->type != XML_ELEMENT_NODE) {
    node = node->parent;
  }
  if (node == nullptr || node->_private == nullptr) {
    return std::nullopt;
  }
  const ByteRange& range = ranges_[reinterpret_cast<std::uintptr_t>(node->_private) - 1];
  return range.end > range.begin ? std::optional(range) : std::nullopt;
}

}  // namespace tarnwick
