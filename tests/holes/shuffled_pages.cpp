// SPDX-License-Identifier: MIT
// Pages with lists whose order is another one each time, and lists that are drawn from many.
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

/// The entries with a word of prose each for every {}.
std::vector<std::string> entries(std::string_view seed, std::string_view form, int count) {
  std::vector<std::string> result;
  for (int i = 0; i < count; ++i) {
    const auto words = prose(std::string(seed) + std::to_string(i), "en", 1);
    auto entry =
        replaced(std::string(form), "{}", words.substr(0, words.find(' ', 18 + static_cast<std::size_t>(i % 7) * 4)));
    result.push_back(replaced(std::move(entry), "#", std::to_string(1000 + i * 37)));
  }
  return result;
}

std::string joined(const std::vector<std::string>& list, std::string_view between) {
  std::string result;
  for (const auto& entry : list) {
    result += result.empty() ? "" : between;
    result += entry;
  }
  return result;
}

Slot shuffled(std::vector<std::string> list, std::string_view between) {
  return [=, between = std::string(between)](const Moment&, Rng& rng) {
    auto order = list;
    rng.shuffle(order);
    return bytes(joined(order, between));
  };
}

Slot drawn(std::vector<std::string> list, std::size_t count, std::string_view between) {
  return [=, between = std::string(between)](const Moment&, Rng& rng) {
    auto order = list;
    rng.shuffle(order);
    order.resize(count);
    return bytes(joined(order, between));
  };
}

}  // namespace

std::vector<Generator> shuffledPages() {
  std::vector<Generator> pages;
  pages.push_back(page("shuffled: items of a list",
                       text({.seed = "items", .articles = 6, .middle = "<ul class=\"links\">\n{{list}}\n</ul>\n"}),
                       {{"list", shuffled(entries("li", "<li><a href=\"/topic/#\">{}</a></li>", 10), "\n")}}));
  pages.push_back(
      page("shuffled: rows of a table",
           text({.seed = "rows",
                 .articles = 8,
                 .bottom = "<table>\n<thead><tr><th>Name</th><th>No.</th></tr></thead>\n<tbody>\n"
                           "{{list}}\n</tbody>\n</table>\n"}),
           {{"list", shuffled(entries("tr", "  <tr>\n    <td>{}</td>\n    <td>#</td>\n  </tr>", 9), "\n")}}));
  pages.push_back(page("shuffled: an array of JSON",
                       "{\"version\": 3, \"title\": \"" + prose("array", "en", 2) +
                           "\", \"items\": [{{list}}], \"about\": \"" + prose("about", "en", 40) + "\"}\n",
                       {{"list", shuffled(entries("js", "{\"id\": #, \"name\": \"{}\", \"on\": true}", 8), ", ")}}));
  pages.push_back(page("shuffled: a cloud of tags",
                       text({.seed = "cloud", .articles = 7, .top = "<div class=\"cloud\">{{list}}</div>\n"}),
                       {{"list", shuffled(entries("tag", "<a class=\"w#\" href=\"/tag/#\">{}</a>", 24), " ")}}));
  pages.push_back(
      page("shuffled: five of thirty related articles",
           text({.seed = "related", .articles = 10, .bottom = "<aside>\n<h3>Read also</h3>\n{{list}}\n</aside>\n"}),
           {{"list", drawn(entries("re", "<p><a href=\"/article/#\">{}</a></p>", 30), 5, "\n")}}));
  pages.push_back(
      page("shuffled: lines of plain text",
           prose("plain", "en", 25) + "\n\nServers in use:\n{{list}}\nEnd of list.\n\n" + prose("end", "en", 12) + "\n",
           {{"list", shuffled(entries("tx", " - {} (#)", 7), "\n")}}));
  return pages;
}

}  // namespace tarnwick::generated
