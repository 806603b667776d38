// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include <libxml/xmlmemory.h>

namespace tarnwick {

struct XmlFree {
  void operator()(xmlChar* text) const { xmlFree(text); }
};

/// The text of the library, which is UTF-8; empty for none.
inline std::string textOf(const xmlChar* text) {
  return text == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(text));
}
inline std::string takenText(xmlChar* text) { return textOf(std::unique_ptr<xmlChar, XmlFree>(text).get()); }

}  // namespace tarnwick
