// SPDX-License-Identifier: MIT
// Pages with what is made anew for each visitor: tokens against forgery, nonces, numbers of requests.
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

/// Thirty scripts that all name the same nonce.
std::string noncedScripts() {
  std::string scripts =
      "<meta http-equiv=\"Content-Security-Policy\" content=\"script-src 'nonce-{{nonce}}' 'strict-dynamic'\">\n";
  for (int i = 0; i < 29; ++i) {
    scripts += "<script nonce=\"{{nonce}}\" src=\"/assets/part" + std::to_string(i) + ".js\"></script>\n";
  }
  return scripts;
}

}  // namespace

std::vector<Generator> tokenPages() {
  std::vector<Generator> pages;
  pages.push_back(
      page("token: hex in a form",
           text({.seed = "hex in a form",
                 .middle = "<form action=\"/login\" method=\"post\">\n<input type=\"hidden\" name=\"csrf\" "
                           "value=\"{{csrf}}\">\n<input name=\"user\">\n<input type=\"submit\">\n</form>\n"}),
           {{"csrf", hex(32)}}));
  pages.push_back(
      page("token: base64 in a meta element",
           text({.seed = "meta token",
                 .articles = 6,
                 .head = "<meta name=\"csrf-param\" content=\"authenticity_token\">\n<meta name=\"csrf-token\" "
                         "content=\"{{csrf}}\">\n"}),
           {{"csrf", base64(86)}}));
  pages.push_back(page("token: one nonce at thirty places",
                       text({.seed = "thirty", .articles = 8, .head = noncedScripts()}), {{"nonce", base64(22)}}));
  pages.push_back(page("token: base64url in a link",
                       text({.seed = "state",
                             .top = "<p><a href=\"https://id.example.org/auth?client=web&state={{state}}&"
                                    "scope=openid\">Sign in</a> to read more.</p>\n"}),
                       {{"state", base64Url(43)}}));
  pages.push_back(page("token: upper-case hex in a comment",
                       text({.seed = "comment", .foot = "<!-- request {{request}} served by the north rack -->\n"}),
                       {{"request", hex(24, kUpperHex)}}));
  pages.push_back(
      page("token: two nonces, a trace and a span",
           text({.seed = "two nonces",
                 .head = "<style nonce=\"{{style}}\">.a { color: #123456; }</style>\n<meta name=\"traceparent\" "
                         "content=\"00-{{trace}}-{{span}}-01\">\n",
                 .foot = "<script nonce=\"{{script}}\">start({lang: 'en', fast: true});</script>\n"}),
           {{"style", base64(16)}, {"script", base64(16)}, {"trace", hex(32)}, {"span", hex(16)}}));
  pages.push_back(
      page("token: base36 of changing length",
           text({.seed = "base36", .bottom = "<div id=\"widget-{{id}}\" class=\"widget\">Opening hours</div>\n"}),
           {{"id", base36(10, 12)}}));
  pages.push_back(
      page("token: a long state of a form",
           text({.seed = "viewstate",
                 .articles = 30,
                 .middle = "<input type=\"hidden\" name=\"__STATE\" id=\"__STATE\" value=\"{{state}}\">\n"}),
           {{"state", base64(1204)}}));
  pages.push_back(
      page("token: written into HTTP headers",
           "HTTP status 200\nserver: example\nx-request-id: {{id}}\nset-cookie: session={{session}}; Path=/; "
           "HttpOnly\ncontent-language: en\n\n" +
               prose("headers", "en", 30) + "\n",
           {{"id", uuid()}, {"session", base64Url(26)}}));
  return pages;
}

}  // namespace tarnwick::generated
