// SPDX-License-Identifier: MIT
#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <array>
#include <sstream>

#include "base/visible_text.h"
#include "exchange/foreign/foreign_sites.h"

namespace tarnwick {
namespace {

// The library takes hundreds of bytes for each value; 32767 sites with all their keys need less.
constexpr std::size_t kLargestYaml = std::size_t{16} * 1024 * 1024;
constexpr std::size_t kLongestValue = 200;
// What holds whatever is watched.
constexpr std::array<std::string_view, 2> kNothingSaid{"kind", "url"};

/// `before` is how many lines stand before the document.
std::size_t lineOf(const YAML::Mark& mark, std::size_t before) {
  return mark.is_null() ? 0 : before + static_cast<std::size_t>(mark.line) + 1;
}

/// A value on one line: `css:#main, html2text`. What is too long or too deep is cut.
void appendShort(const YAML::Node& node, int depth, std::string& text) {
  constexpr int kDeepest = 3;
  if (text.size() > kLongestValue || depth > kDeepest) {
    return;
  }
  if (node.IsScalar()) {
    text += node.Scalar();
  } else if (node.IsSequence()) {
    for (std::size_t i = 0; i < node.size() && text.size() <= kLongestValue; ++i) {
      text += i == 0 ? "" : ", ";
      appendShort(node[i], depth + 1, text);
    }
  } else if (node.IsMap()) {
    bool first = true;
    for (const auto& pair : node) {
      text += first ? "" : ", ";
      first = false;
      appendShort(pair.first, depth + 1, text);
      text += ":";
      appendShort(pair.second, depth + 1, text);
    }
  }
}

std::string shortText(const YAML::Node& node) {
  std::string text;
  appendShort(node, 0, text);
  return text;
}

/// One job: a document of the file, or an entry of a list.
class Job {
 public:
  Job(const YAML::Node& node, std::size_t before, ForeignSites& sites) : node_(node), before_(before), sites_(sites) {}

  void read() {
    const std::size_t line = lineOf(node_.Mark(), before_);
    const YAML::Node url = node_["url"] ? node_["url"] : node_["navigate"];
    if (!url || !url.IsScalar()) {
      const YAML::Node command = node_["command"];
      return sites_.leaveOut(line, command ? shortText(command) : shortText(node_),
                             command ? "it is a command, and only pages are watched" : "it has no url");
    }
    ForeignSite site(line, url.Scalar());
    bool data = false;
    for (const auto& pair : node_) {
      const std::string key = pair.first.IsScalar() ? pair.first.Scalar() : std::string();
      data = data || key == "data";
      take(site, key, pair.second);
    }
    if (data && !site.listed().given.has(list_name::method)) {
      site.setMethod("post");  // which is how it is sent there, too
    }
    sites_.add(std::move(site));
  }

 private:
  /// What is written once for several jobs.
  void takeMerged(ForeignSite& site, const YAML::Node& value) {
    for (const auto& pair : value) {
      if (pair.first.IsScalar() && pair.first.Scalar() != "<<" && !node_[pair.first.Scalar()]) {
        take(site, pair.first.Scalar(), pair.second);
      }
    }
  }

  void take(ForeignSite& site, const std::string& key, const YAML::Node& value) {
    if (value.IsNull() || std::ranges::find(kNothingSaid, key) != kNothingSaid.end()) {
      return;
    }
    if (key == "method") {
      site.setMethod(shortText(value));
    } else if (key == "data") {
      takeData(site, value);
    } else if (key == "headers" && value.IsMap()) {
      for (const auto& header : value) {
        site.setHeader(shortText(header.first), shortText(header.second));
      }
    } else if (key == "enabled") {
      site.setActive(value.as<bool>(true));
    } else if (key == "<<" && value.IsMap()) {
      takeMerged(site, value);
    } else if (key == "timeout") {
      site.lacks("time-out of " + shortText(value) + " seconds (there is one for all sites: the setting timeout)");
    } else if (key == "navigate") {
      site.lacks("rendering by a browser (navigate)");
    } else if (key == "cookies" || key == "http_proxy" || key == "https_proxy") {
      site.lacks(key);  // whose values may be secrets
    } else {
      site.lacks(key == "name" ? "title" : key, shortText(value));
    }
  }

  static void takeData(ForeignSite& site, const YAML::Node& value) {
    if (!value.IsMap()) {
      return site.setBody(value.IsScalar() ? value.Scalar() : shortText(value));
    }
    for (const auto& pair : value) {
      if (!pair.first.IsScalar() || !pair.second.IsScalar()) {
        return site.setBody("{" + shortText(value) + "}");
      }
      site.addPostVar(pair.first.Scalar(), pair.second.Scalar());
    }
  }

  const YAML::Node& node_;
  std::size_t before_;
  ForeignSites& sites_;
};

/// The lines of a text up to the next one that begins a document, "---", which is not taken; at least one.
std::string_view takeDocument(std::string_view& text) {
  const std::string_view all = text;
  bool hasContent = false;
  do {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    hasContent =
        hasContent || (text.front() != '%' && text.front() != '#' && text.front() != '\n' && text.front() != '\r');
    text.remove_prefix(end);
  } while (!text.empty() && !(hasContent && text.starts_with("---")));
  return all.substr(0, all.size() - text.size());
}

void readDocument(const std::string& text, std::size_t before, ForeignSites& sites) {
  try {
    const YAML::Node document = YAML::Load(text);
    if (document.IsMap()) {
      Job(document, before, sites).read();
    } else if (document.IsSequence()) {
      for (const auto& entry : document) {
        if (!entry.IsMap()) {
          throw ForeignError(lineOf(entry.Mark(), before),
                             "this is no job of urlwatch: give one like url: https://...");
        }
        Job(entry, before, sites).read();
      }
    } else if (!document.IsNull()) {
      throw ForeignError(std::max<std::size_t>(1, lineOf(document.Mark(), before)),
                         "this is no job of urlwatch: give one like url: https://...");
    }
  } catch (const YAML::Exception& error) {
    throw ForeignError(lineOf(error.mark, before), "this is no YAML: " + visibleText(error.msg) + ". Correct it here");
  }
}

}  // namespace

void readUrlwatch(std::string_view text, ForeignSites& sites) {
  if (text.size() > kLargestYaml) {
    throw ForeignError(0,
                       "the file is larger than 16 MiB, and no list of urlwatch is: see whether it is the right one");
  }
  // One after the other: asked for all at once the library finds documents without end in some damaged files.
  for (std::size_t before = 0; !text.empty();) {
    const std::string_view document = takeDocument(text);
    readDocument(std::string(document), before, sites);
    before += static_cast<std::size_t>(std::ranges::count(document, '\n'));
  }
}

}  // namespace tarnwick
