// SPDX-License-Identifier: MIT
#pragma once

#include <libxml/tree.h>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "page_rules/found_ranges.h"

namespace tarnwick {

/// The elements of a page, and where each of them stands in its source.
class HtmlElements {
 public:
  /// `page` has ASCII alone and no NUL. Markup that is wrong is read as browsers would; of one that is nested without
  /// end only the beginning is read.
  explicit HtmlElements(std::string_view page);

  /// Nothing for a page without any element.
  xmlDoc* document() const { return document_.get(); }
  /// Where an element, or the one that a text or an attribute belongs to, stands, with its two tags; nothing for one
  /// that the source only implies.
  std::optional<ByteRange> rangeOf(const xmlNode* node) const;

 private:
  friend struct HtmlEvents;
  struct Free {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
  };

  std::unique_ptr<xmlDoc, Free> document_;
  std::vector<ByteRange> ranges_;  ///< by what a node has as `_private`, from 1 on; of no length when implied
};

}  // namespace tarnwick
