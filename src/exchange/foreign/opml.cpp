// SPDX-License-Identifier: MIT
#include <libxml/xmlreader.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "base/text.h"
#include "base/visible_text.h"
#include "exchange/foreign/foreign_sites.h"
#include "exchange/foreign/markup.h"

namespace tarnwick {
namespace {

struct ReaderFree {
  void operator()(xmlTextReader* reader) const { xmlFreeTextReader(reader); }
};

/// The first thing that the library finds wrong.
struct XmlFault {
  static void keep(void* self, xmlError* error) {
    auto& fault = *static_cast<XmlFault*>(self);
    if (error->level >= XML_ERR_ERROR && fault.text.empty()) {
      fault.line = static_cast<std::size_t>(std::max(0, error->line));
      fault.text = error->message == nullptr ? "unknown" : error->message;
    }
  }

  std::size_t line = 0;
  std::string text;
};

class OpmlReader {
 public:
  OpmlReader(std::string_view text, ForeignSites& sites)
      : sites_(sites),
        // Entities of the file's own are not put in, and nothing is fetched.
        reader_(xmlReaderForMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, XML_PARSE_NONET)) {
    if (reader_ == nullptr) {
      throw std::bad_alloc();
    }
    xmlTextReaderSetStructuredErrorHandler(reader_.get(), &XmlFault::keep, &fault_);
  }

  void read() {
    int state = 0;
    while ((state = xmlTextReaderRead(reader_.get())) == 1) {
      const int type = xmlTextReaderNodeType(reader_.get());
      if (type == XML_READER_TYPE_ELEMENT) {
        element(lowerCase(textOf(xmlTextReaderConstLocalName(reader_.get()))));
      }
    }
    if (state < 0) {
      throw ForeignError(fault_.line, "this is no whole OPML: " + visibleText(trimmed(fault_.text)) +
                                          ". Export it anew, or correct it here");
    }
  }

 private:
  std::size_t line() const {
    return static_cast<std::size_t>(std::max(0L, xmlGetLineNo(xmlTextReaderCurrentNode(reader_.get()))));
  }

  std::string attribute(const char* name) const {
    return takenText(xmlTextReaderGetAttribute(reader_.get(), reinterpret_cast<const xmlChar*>(name)));
  }

  void element(std::string_view name) {
    const auto depth = static_cast<std::size_t>(std::max(0, xmlTextReaderDepth(reader_.get())));
    if (depth == 0 && name != "opml") {
      throw ForeignError(
          line(), "this is no OPML: its outermost element is " + quotedForMessage(name) + " instead of \"opml\"");
    }
    if (name != "outline") {
      return;
    }
    while (!folders_.empty() && folders_.back().first >= depth) {
      folders_.pop_back();
    }
    const std::string title = attribute("title").empty() ? attribute("text") : attribute("title");
    outline(title);
    folders_.emplace_back(depth, title);
  }

  /// One without an address is the folder of those inside it.
  void outline(const std::string& title) {
    // A feed is what its reader watches; the page that belongs to it is another address.
    constexpr std::array kAddresses{"xmlUrl", "url", "htmlUrl"};
    std::optional<ForeignSite> site;
    for (const char* name : kAddresses) {
      const std::string address(trimmed(attribute(name)));
      if (address.empty()) {
        continue;
      }
      if (!site) {
        site.emplace(line(), address);
        site->lacks("title", title);
      } else if (address != site->listed().site.url) {
        site->lacks(name, address);
      }
    }
    if (!site) {
      return;
    }
    std::string folder;
    for (const auto& [depth, name] : folders_) {
      folder += (folder.empty() ? "" : " / ") + name;
    }
    site->lacks("folder", folder);
    for (const char* name : {"category", "description"}) {
      site->lacks(name, attribute(name));
    }
    sites_.add(std::move(*site));
  }

  ForeignSites& sites_;
  XmlFault fault_;
  std::unique_ptr<xmlTextReader, ReaderFree> reader_;
  std::vector<std::pair<std::size_t, std::string>> folders_;
};

}  // namespace

void readOpml(std::string_view text, ForeignSites& sites) { OpmlReader(text, sites).read(); }

}  // namespace tarnwick
