// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>

#include "base/text.h"
#include "base/visible_text.h"
#include "exchange/foreign/foreign_sites.h"
#include "exchange/json/line_counter.h"

namespace tarnwick {
namespace {

using Json = nlohmann::json;
using Names = std::set<std::string, std::less<>>;

constexpr std::string_view kZipMark = "PK\x03\x04";
constexpr std::string_view kOldList = "url-watches.json";
constexpr std::string_view kNewSettings = "changedetection.json";
constexpr std::string_view kNewWatch = "/watch.json";
constexpr std::string_view kNewTag = "/tag.json";
constexpr std::size_t kLongestValue = 200;

/// What the program has found, and what goes with the site in another form.
const Names kNoted{"url",
                   "title",
                   "uuid",
                   "tag",
                   "tags",
                   "paused",
                   "method",
                   "body",
                   "headers",
                   "time_between_check",
                   "time_between_check_use_default",
                   "minutes_between_check",
                   "notification_muted",
                   "muted",
                   "date_created",
                   "check_count",
                   "last_checked",
                   "last_changed",
                   "last_viewed",
                   "last_error",
                   "last_notification_error",
                   "history",
                   "history_n",
                   "newest_history_key",
                   "previous_md5",
                   "previous_md5_before_filters",
                   "fetch_time",
                   "content-type",
                   "remote_server_reply",
                   "page_title",
                   "has_ldjson_price_data",
                   "consecutive_filter_failures",
                   "notification_alert_count",
                   "browser_steps_last_error_step",
                   "viewed",
                   "link",
                   "last_check_status",
                   "restock",
                   "previous_md5_hash",
                   "snapshot_etag",
                   "favicon",
                   "conditions_match_logic",
                   "content_type",
                   "time_schedule_limit",
                   "notification_format"};
/// What is on unless it was switched off.
const Names kUsuallyOn{"filter_text_added",    "filter_text_removed", "filter_text_replaced",
                       "follow_price_changes", "in_stock_only",       "filter_failure_notification_send"};
/// Whose values may be secrets or programs: they are only named.
const Names kOnlyNamed{"notification_urls",         "notification_body", "notification_title", "proxy",
                       "webdriver_js_execute_code", "browser_steps"};
/// Values that mean nothing in particular.
const Names kUsualValues{"system", "text_json_diff", "System default", "ALL"};

std::string shortText(const Json& value) {
  std::string text;
  if (value.is_string()) {
    text = value.get<std::string>();
  } else if (value.is_array()) {
    for (const Json& element : value) {
      if (text.size() > kLongestValue) {
        break;
      }
      text += (text.empty() ? "" : ", ") + (element.is_string() ? element.get<std::string>() : element.dump());
    }
  } else {
    text = value.dump();
  }
  return text;
}

bool saysNothing(const Json& value) {
  return value.is_null() || (value.is_boolean() && !value.get<bool>()) ||
         ((value.is_array() || value.is_object()) && value.empty()) ||
         (value.is_string() && (trimmed(value.get_ref<const std::string&>()).empty() ||
                                kUsualValues.contains(value.get_ref<const std::string&>())));
}

/// The member of an object; null for none.
const Json& memberOf(const Json& object, std::string_view name) {
  static const Json kNone;
  if (!object.is_object()) {
    return kNone;
  }
  const auto found = object.find(name);
  return found == object.end() ? kNone : *found;
}

std::string textOf(const Json& object, std::string_view name) {
  const Json& value = memberOf(object, name);
  return value.is_string() ? value.get<std::string>() : std::string();
}

bool isTrue(const Json& value) { return value.is_boolean() && value.get<bool>(); }

/// Numbers stand as texts, too.
double numberOf(const Json& value) {
  if (value.is_number()) {
    return value.get<double>();
  }
  double number = 0;
  if (value.is_string()) {
    const std::string& text = value.get_ref<const std::string&>();
    std::from_chars(text.data(), text.data() + text.size(), number);
  }
  return number;
}

/// The seconds of an interval in either of its forms; nothing when it holds none.
std::optional<double> secondsOf(const Json& holder) {
  using Unit = std::pair<const char*, double>;
  constexpr std::array kUnits{Unit{"weeks", 604800}, Unit{"days", 86400}, Unit{"hours", 3600}, Unit{"minutes", 60},
                              Unit{"seconds", 1}};
  double seconds = 0;
  const Json& parts = memberOf(holder, "time_between_check");
  for (const auto& [unit, length] : kUnits) {
    seconds += numberOf(memberOf(parts, unit)) * length;
  }
  if (seconds <= 0) {
    seconds = numberOf(memberOf(holder, "minutes_between_check")) * 60;
  }
  return seconds > 0 ? std::optional(seconds) : std::nullopt;
}

/// One JSON text, with the lines on which the objects inside its members begin: the library sorts them by name.
class Document {
 public:
  explicit Document(std::string_view text) {
    std::size_t line = 1;
    std::string key;
    const auto note = [&](int depth, Json::parse_event_t event, Json& value) {
      if (depth == 2 && event == Json::parse_event_t::key) {
        key = value.get<std::string>();
      } else if (depth == 2 && event == Json::parse_event_t::object_start) {
        members_.emplace_back(key, line);
      }
      return true;
    };
    try {
      root_ = Json::parse(LineCounter(text.data(), line), LineCounter(text.data() + text.size(), line), note);
    } catch (const Json::exception& error) {
      const std::string_view what = error.what();
      throw ForeignError(line,
                         "this is no JSON: " + visibleText(what.substr(std::min(what.rfind("- ") + 2, what.size()))) +
                             ". The file may be cut short: copy it anew");
    }
  }

  const Json& root() const { return root_; }
  /// The names of those members in their order, each with its line.
  const std::vector<std::pair<std::string, std::size_t>>& members() const { return members_; }

 private:
  Json root_;
  std::vector<std::pair<std::string, std::size_t>> members_;
};

class WatchReader {
 public:
  explicit WatchReader(ForeignSites& sites) : sites_(sites) {}

  void takeSettings(const Json& settings) {
    const Json& requests = memberOf(settings, "requests");
    interval_ = secondsOf(requests);
    const Json& application = memberOf(settings, "application");
    const Json& tags = memberOf(application, "tags");
    for (const auto& tag : tags.items()) {
      takeTag(tag.key(), tag.value());
    }
    for (const auto& [holder, name] :
         std::initializer_list<std::pair<const Json&, const char*>>{{settings, "headers"},
                                                                    {requests, "timeout"},
                                                                    {requests, "proxy"},
                                                                    {requests, "extra_proxies"},
                                                                    {application, "global_ignore_text"},
                                                                    {application, "global_subtractive_selectors"},
                                                                    {application, "notification_urls"},
                                                                    {application, "all_paused"},
                                                                    {application, "password"}}) {
      if (!saysNothing(memberOf(holder, name))) {
        sites_.lacks(std::string("the general setting ") + name);
      }
    }
  }

  void takeTag(const std::string& uuid, const Json& tag) { tags_[uuid] = textOf(tag, "title"); }

  void takeWatch(const Json& watch, std::size_t line) {
    if (!watch.is_object()) {
      throw ForeignError(line, "this is no list of changedetection.io: a watch in it is no object");
    }
    ForeignSite site(line, textOf(watch, "url"));
    site.lacks("title", textOf(watch, "title"));
    site.lacks("tags", tagsOf(watch));
    takeInterval(site, watch);
    if (const Json& paused = memberOf(watch, "paused"); paused.is_boolean()) {
      site.setActive(!paused.get<bool>());
    }
    takeRequest(site, watch);
    for (const auto& member : watch.items()) {
      takeFurther(site, member.key(), member.value());
    }
    if (isTrue(memberOf(memberOf(watch, "time_schedule_limit"), "enabled"))) {
      site.lacks("time_schedule_limit");
    }
    sites_.add(std::move(site));
  }

  void finish() { sites_.lacks("counters, times and the pages of the past"); }

 private:
  std::string tagsOf(const Json& watch) const {
    std::string tags = textOf(watch, "tag");
    for (const Json& tag : memberOf(watch, "tags")) {
      const std::string uuid = tag.is_string() ? tag.get<std::string>() : tag.dump();
      const auto found = tags_.find(uuid);
      tags += (tags.empty() ? "" : ", ") + (found == tags_.end() || found->second.empty() ? uuid : found->second);
    }
    return tags;
  }

  void takeInterval(ForeignSite& site, const Json& watch) {
    const auto own = secondsOf(watch);
    const auto seconds = own && !isTrue(memberOf(watch, "time_between_check_use_default")) ? own : interval_;
    if (seconds) {
      site.setInterval(*seconds);
    }
  }

  static void takeRequest(ForeignSite& site, const Json& watch) {
    if (const std::string method = textOf(watch, "method"); !method.empty()) {
      site.setMethod(method);
    }
    site.setBody(textOf(watch, "body"));
    for (const auto& header : memberOf(watch, "headers").items()) {
      site.setHeader(header.key(), shortText(header.value()));
    }
  }

  static void takeFurther(ForeignSite& site, const std::string& name, const Json& value) {
    if (kNoted.contains(name)) {
      return;
    }
    if (kUsuallyOn.contains(name)) {
      if (value.is_boolean() && !value.get<bool>()) {
        site.lacks(name + " switched off");
      }
    } else if (!saysNothing(value)) {
      kOnlyNamed.contains(name) || isTrue(value) ? site.lacks(name) : site.lacks(name, shortText(value));
    }
  }

  ForeignSites& sites_;
  std::optional<double> interval_;
  std::map<std::string, std::string, std::less<>> tags_;
};

void readList(std::string_view text, ForeignSites& sites) {
  const Document list(text);
  const Json& watching = memberOf(list.root(), "watching");
  WatchReader reader(sites);
  if (watching.is_object()) {
    reader.takeSettings(memberOf(list.root(), "settings"));
    for (const auto& [uuid, line] : list.members()) {
      if (const auto watch = watching.find(uuid); watch != watching.end()) {
        reader.takeWatch(*watch, line);
      }
    }
  } else if (memberOf(list.root(), "url").is_string()) {
    reader.takeWatch(list.root(), 1);
  } else {
    throw ForeignError(1, "this is no list of changedetection.io: it has no member \"watching\" with an object");
  }
  reader.finish();
}

/// The name of the folder in which the file lies.
std::string folderOf(std::string_view name, std::string_view end) {
  const std::string_view path = name.substr(0, name.size() - end.size());
  return std::string(path.substr(path.rfind('/') + 1));
}

void readBackup(std::string_view bytes, ForeignSites& sites) {
  const std::vector<ZipMember> members = zipMembers(bytes, [](std::string_view name) {
    return name.ends_with(kOldList) || name.ends_with(kNewSettings) || name.ends_with(kNewWatch) ||
           name.ends_with(kNewTag);
  });
  const auto old =
      std::ranges::find_if(members, [](const ZipMember& member) { return member.name.ends_with(kOldList); });
  const bool apart =
      std::ranges::any_of(members, [](const ZipMember& member) { return member.name.ends_with(kNewWatch); });
  if (old != members.end() && !apart) {
    return readList(old->bytes, sites);
  }
  if (!apart) {
    throw ForeignError(0, "the zip archive holds no list: it is no backup of changedetection.io");
  }
  // The watches name tags and the general interval, which lie beside them.
  WatchReader reader(sites);
  for (const ZipMember& member : members) {
    if (member.name.ends_with(kNewSettings)) {
      reader.takeSettings(memberOf(Document(member.bytes).root(), "settings"));
    } else if (member.name.ends_with(kNewTag)) {
      reader.takeTag(folderOf(member.name, kNewTag), Document(member.bytes).root());
    }
  }
  for (const ZipMember& member : members) {
    if (member.name.ends_with(kNewWatch)) {
      reader.takeWatch(Document(member.bytes).root(), 0);
    }
  }
  reader.finish();
}

}  // namespace

void readChangedetection(std::string_view bytes, ForeignSites& sites) {
  bytes.starts_with(kZipMark) ? readBackup(bytes, sites) : readList(bytes, sites);
}

}  // namespace tarnwick
