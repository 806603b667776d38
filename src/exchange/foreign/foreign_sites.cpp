// SPDX-License-Identifier: MIT
#include "exchange/foreign/foreign_sites.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/base64.h"
#include "base/decode_error.h"
#include "base/text.h"
#include "exchange/list/site_import.h"
#include "exchange/list/site_list_post_vars.h"

namespace tarnwick {
namespace {

constexpr double kSecondsOfMinute = 60;
constexpr double kMostMinutes = 32767;
constexpr std::string_view kBasic = "Basic ";
constexpr std::string_view kFormType = "application/x-www-form-urlencoded";

std::string numberText(double number) {
  std::string text = std::to_string(number);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) {
    text.pop_back();
  }
  return text;
}

/// "mailto:me@example.org", "tel:+49...": a colon without slashes and without the digits of a port behind it.
bool isOfAnotherScheme(std::string_view url) {
  const std::size_t colon = url.find(':');
  const std::size_t slash = url.find('/');
  return colon != std::string_view::npos && colon < slash && !url.substr(colon).starts_with("://") &&
         (colon + 1 == url.size() || !isDigit(url[colon + 1]));
}

/// Forms write a blank as "+".
std::string withBlanks(std::string_view form) {
  std::string text;
  for (const char c : form) {
    text += c == '+' ? std::string("%20") : std::string(1, c);
  }
  return text;
}

}  // namespace

ForeignSite::ForeignSite(std::size_t line, std::string_view url) {
  site_.line = line;
  site_.site.url = trimmed(url);
  site_.given.set(list_name::url);
}

void ForeignSite::setMethod(std::string_view method) {
  if (equalsIgnoringCase(method, "get") || equalsIgnoringCase(method, "post")) {
    site_.site.method = lowerCase(std::string(method));
    site_.given.set(list_name::method);
    return;
  }
  lacks("method " + quotedForMessage(method) + " (so it is switched off)");
  setActive(false);
}

void ForeignSite::setActive(bool active) {
  // What was switched off since it cannot be asked for rightly stays so.
  site_.site.active = active && (site_.site.active || !site_.given.has("active"));
  site_.given.set("active");
}

void ForeignSite::setInterval(double seconds) {
  const double minutes = std::clamp(std::ceil(seconds / kSecondsOfMinute), 1.0, kMostMinutes);
  site_.site.tInterval = std::to_string(static_cast<std::int64_t>(minutes));
  site_.given.set("tInterval");
  if (minutes * kSecondsOfMinute != seconds) {
    lacks("interval of " + numberText(seconds) + " seconds (taken as " + site_.site.tInterval + " min)");
  }
}

void ForeignSite::setHeader(const std::string& name, const std::string& value) {
  const bool form = equalsIgnoringCase(name, "content-type") && lowerCase(value).starts_with(kFormType);
  if (equalsIgnoringCase(name, "authorization") && value.size() > kBasic.size() &&
      equalsIgnoringCase(std::string_view(value).substr(0, kBasic.size()), kBasic)) {
    try {
      const std::string pair = decodeBase64(trimmed(std::string_view(value).substr(kBasic.size())));
      if (const std::size_t colon = pair.find(':'); colon != std::string::npos) {
        return setCredentials(pair.substr(0, colon), pair.substr(colon + 1));
      }
    } catch (const DecodeError&) {
      // A header like any other, then.
    }
  }
  if (!form) {  // which goes with every form
    lacks("header " + quotedForMessage(name));
  }
}

void ForeignSite::addPostVar(std::string name, std::string value) {
  site_.postVars.push_back({std::move(name), std::move(value)});
  site_.given.set(list_name::postVars);
}

void ForeignSite::setBody(std::string_view body) {
  if (trimmed(body).empty()) {
    return;
  }
  try {
    site_.postVars = decodePostVars(withBlanks(trimmed(body)));
    site_.given.set(list_name::postVars);
    if (body.find_first_of("{[<\"") == std::string_view::npos) {
      return;
    }
  } catch (const std::invalid_argument&) {
    // No form, then.
  }
  site_.postVars.clear();
  lacks("request body " + quotedForMessage(body) + ", which is no form (so it is switched off)");
  setActive(false);
}

void ForeignSite::setCredentials(std::string name, std::string password) {
  site_.site.sUserName = std::move(name);
  site_.site.sPassWord = std::move(password);
  site_.given.set("sUserName");
  site_.given.set("sPassWord");
}

void ForeignSite::lacks(const std::string& name, std::string_view value) {
  if (const std::string_view text = trimmed(value); !text.empty()) {
    lacks(name + " " + quotedForMessage(text));
  }
}

void ForeignSites::add(ForeignSite site) {
  ListedSite& listed = site.listed();
  if (listed.site.url.empty()) {
    return leaveOut(listed.line, "", "there is no address");
  }
  if (isOfAnotherScheme(listed.site.url)) {
    return leaveOut(listed.line, listed.site.url, "it is the address of no page");
  }
  ListFaults faults;
  ListValues values(listed.line, faults);
  checkTexts(listed.site, values);
  if (!faults.none()) {
    return leaveOut(listed.line, listed.site.url, faults.kept().front().text);
  }
  if (list_.sites.size() == list_bound::sites) {
    throw ForeignError(listed.line, kTooManySites);
  }
  if (!site.lacking().empty()) {
    list_.notes.push_back({listed.line, listed.site.url, std::move(site.lacking()), false});
  }
  list_.sites.push_back(std::move(listed));
}

void ForeignSites::leaveOut(std::size_t line, std::string_view subject, std::string why) {
  list_.notes.push_back({line, std::string(subject), {std::move(why)}, true});
}

void ForeignSites::lacks(std::string thing) { list_.notes.push_back({0, "", {std::move(thing)}, false}); }

}  // namespace tarnwick
