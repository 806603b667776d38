// SPDX-License-Identifier: MIT
#include <libxml/xpath.h>

#include <algorithm>
#include <memory>

#include "base/text.h"
#include "page_rules/html_elements.h"
#include "page_rules/languages.h"

namespace tarnwick {
namespace {

/// Steps of an expression, of which a page may be made to need many more than it has bytes.
constexpr unsigned long kMostSteps = 20'000'000;
/// The tree of a page takes many times its own length.
constexpr std::size_t kLargestPage = std::size_t{16} << 20U;

struct Free {
  void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
  void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
  void operator()(xmlXPathCompExpr* expression) const { xmlXPathFreeCompExpr(expression); }
};

void saysNothing(void* /*data*/, xmlErrorPtr /*error*/) {}
void printsNothing(void* /*context*/, const char* /*format*/, ...) {}

/// The library prints some faults, as of a function that there is not, instead of telling them.
class Silence {
 public:
  Silence() { xmlSetGenericErrorFunc(nullptr, &printsNothing); }
  ~Silence() { xmlSetGenericErrorFunc(context_, print_); }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  void* const context_ = xmlGenericErrorContext;
  const xmlGenericErrorFunc print_ = xmlGenericError;
};

/// Each byte outside ASCII becomes one letter, in page and rule alike, so that no encoding moves a place.
std::string asAscii(std::string_view text) {
  std::string ascii(text);
  for (char& c : ascii) {
    c = c == '\0' ? ' ' : static_cast<unsigned char>(c) >= 0x80 ? 'x' : c;
  }
  return ascii;
}

}  // namespace

std::vector<ByteRange> foundByXPath(const std::string& rule, std::string_view page) {
  const Silence silence;
  const std::unique_ptr<xmlXPathContext, Free> context(xmlXPathNewContext(nullptr));
  if (!context) {
    throw std::bad_alloc();
  }
  context->error = &saysNothing;
  context->opLimit = kMostSteps;
  const std::string expression = asAscii(rule);
  const std::unique_ptr<xmlXPathCompExpr, Free> compiled(
      xmlXPathCtxtCompile(context.get(), reinterpret_cast<const xmlChar*>(expression.c_str())));
  if (!compiled || trimmed(rule).empty()) {
    throw RuleFault{"Write an expression that selects elements, as //div[@id='main'] or //p."};
  }
  if (page.size() > kLargestPage) {
    return {};
  }
  const std::string ascii = asAscii(page);
  const HtmlElements elements(ascii);
  if (elements.document() == nullptr) {
    return {};
  }
  context->doc = elements.document();
  context->node = xmlDocGetRootElement(elements.document());
  const std::unique_ptr<xmlXPathObject, Free> result(xmlXPathCompiledEval(compiled.get(), context.get()));
  std::vector<ByteRange> found;
  if (result && result->type == XPATH_NODESET && result->nodesetval != nullptr) {
    for (int i = 0; i < result->nodesetval->nodeNr; ++i) {
      if (const auto range = elements.rangeOf(result->nodesetval->nodeTab[i])) {
        found.push_back(*range);
      }
    }
  }
  return found;
}

}  // namespace tarnwick
