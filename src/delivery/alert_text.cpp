// SPDX-License-Identifier: MIT
#include "delivery/alert_text.h"

#include <array>
#include <utility>

#include "base/host_of_address.h"
#include "base/text.h"
#include "base/visible_text.h"
#include "base/windows_1252.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestLine = 500;
/// More sites than this are counted and not named.
constexpr std::size_t kMostNamed = 200;

struct Happening {
  std::string_view event;
  std::string_view words;
};
constexpr std::array<Happening, 12> kHappenings{{
    {"down", "does not answer"},
    {"still down", "is still down"},
    {"up", "is up again"},
    {"unsteady", "is unsteady"},
    {"slow", "is slow"},
    {"certificate", "has a certificate that ends soon"},
    {"issuer", "has a certificate from another authority"},
    {"online", "This machine is online again"},
    {"test", "A test of Tarnwick"},
    {"daily test", "The daily test alert"},
    {"all is well", "All is well"},
    {kMonthReport, "The month's report"},
}};

// By what a page is drawn with: mail programs know no style sheets.
constexpr std::string_view kPageBegin =
    "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"></head>\n"
    "<body style=\"font-family:sans-serif;font-size:14px;color:#202124;background:#ffffff\">\n";
constexpr std::string_view kPageEnd =
    "<p style=\"color:#555555;font-size:12px\">Sent by Tarnwick, which watches these pages for you.</p>\n"
    "</body></html>\n";
constexpr std::string_view kCell = "<td style=\"padding:2px 12px 2px 0;vertical-align:top\">";

using Fact = std::pair<std::string_view, std::string>;

std::vector<Fact> factsOf(const Alert& alert) {
  std::vector<Fact> facts;
  const auto add = [&](std::string_view name, const std::string& value) {
    if (!value.empty()) {
      facts.emplace_back(name, plainLine(value));
    }
  };
  add("Address", withoutCredentials(alert.url));
  add("Site", alert.idSite == 0 ? std::string() : std::to_string(alert.idSite));
  add("At", dateTimeText(alert.made));
  add("Cause", alert.cause);
  add("Down since", alert.downSince);
  add("Down for", alert.downFor);
  add("Failed checks", alert.checks == "0" ? std::string() : alert.checks);
  add("First error", alert.firstError == alert.cause ? std::string() : alert.firstError);
  return facts;
}

std::string titleOf(const Alert& alert) {
  const std::string words(happening(alert));
  return alert.url.empty() ? words : plainLine(hostOfAddress(alert.url)) + " " + words;
}

std::string titleOf(std::span<const OutboxRow> rows) {
  if (rows.size() == 1) {
    return titleOf(rows.front().alert);
  }
  for (const OutboxRow& row : rows) {
    if (row.alert.event != rows.front().alert.event) {
      return std::to_string(rows.size()) + " alerts";
    }
  }
  return std::to_string(rows.size()) + " sites: " + rows.front().alert.event;
}

std::string factLines(const Alert& alert) {
  constexpr std::size_t kWidth = 15;
  std::string lines;
  for (const auto& [name, value] : factsOf(alert)) {
    std::string label = std::string(name) + ":";
    label.resize(kWidth, ' ');
    lines += label + value + "\n";
  }
  return lines;
}

template <typename Take>
void eachLine(std::string_view text, Take take) {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    take(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
}

std::string differenceLines(const Alert& alert) {
  std::string lines;
  eachLine(alert.difference, [&](std::string_view line) { lines += plainLine(line) + "\n"; });
  return lines.empty() ? lines : "\n" + lines;
}

std::string_view colourOf(std::string_view line) {
  return line.starts_with('-') ? "#FBD9D6" : line.starts_with('+') ? "#CDEFD9" : "#ffffff";
}

std::string htmlDifference(const Alert& alert) {
  if (alert.difference.empty()) {
    return {};
  }
  std::string html = "<div style=\"font-family:monospace;white-space:pre-wrap;border:1px solid #cccccc\">\n";
  eachLine(alert.difference, [&](std::string_view line) {
    html.append("<div style=\"background:").append(colourOf(line)).append("\">");
    html.append(htmlText(plainLine(line))).append("</div>\n");
  });
  return html + "</div>\n";
}

std::string htmlOf(const Alert& alert) {
  std::string html = "<table style=\"border-collapse:collapse\">\n";
  for (const auto& [name, value] : factsOf(alert)) {
    html.append("<tr>").append(kCell).append(name).append("</td>").append(kCell);
    html.append(htmlText(value)).append("</td></tr>\n");
  }
  return html + "</table>\n" + htmlDifference(alert);
}

}  // namespace

std::string_view happening(const Alert& alert) {
  if (alert.event == "down" && !alert.difference.empty()) {
    return "changed";
  }
  for (const Happening& known : kHappenings) {
    if (known.event == alert.event) {
      return known.words;
    }
  }
  return alert.event;
}

std::string plainLine(std::string_view bytes) {
  if (isUtf8(bytes)) {
    return visibleText(bytes, kLongestLine);
  }
  std::string text;
  for (const char c : bytes.substr(0, kLongestLine)) {
    appendUtf8(text, characterOfWindows1252(static_cast<unsigned char>(c)));
  }
  return visibleText(text, kLongestLine);
}

std::string htmlText(std::string_view text) {
  std::string html;
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      case '\'':
        html += "&#39;";
        break;
      default:
        html += c;
    }
  }
  return html;
}

AlertText alertTextOf(std::span<const OutboxRow> rows) {
  AlertText message{.title = titleOf(rows), .text = {}, .html = {}};
  message.html.append(kPageBegin).append("<h3>").append(htmlText(message.title)).append("</h3>\n");
  if (rows.size() == 1) {
    const Alert& alert = rows.front().alert;
    message.text = factLines(alert) + differenceLines(alert);
    message.html += htmlOf(alert);
  } else {
    message.html += "<ul>\n";
    for (const OutboxRow& row : rows.first(std::min(rows.size(), kMostNamed))) {
      const std::string why = row.alert.cause.empty() ? std::string() : ": " + plainLine(row.alert.cause);
      const std::string line =
          plainLine(withoutCredentials(row.alert.url)) + " " + std::string(happening(row.alert)) + why;
      message.text += line + "\n";
      message.html.append("<li>").append(htmlText(line)).append("</li>\n");
    }
    message.html += "</ul>\n";
    if (rows.size() > kMostNamed) {
      const std::string more = "and " + std::to_string(rows.size() - kMostNamed) + " more";
      message.text += more + "\n";
      message.html.append("<p>").append(more).append("</p>\n");
    }
  }
  message.html += kPageEnd;
  return message;
}

}  // namespace tarnwick
