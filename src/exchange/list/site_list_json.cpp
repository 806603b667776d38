// SPDX-License-Identifier: MIT
#include "exchange/list/site_list_json.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>

#include "base/visible_text.h"
#include "exchange/json/line_counter.h"
#include "exchange/list/site_list_channels.h"
#include "exchange/list/site_list_json_site.h"

namespace tarnwick {
namespace {

using Json = nlohmann::json;

constexpr const char* kVersionName = "tarnwick";
constexpr const char* kSitesName = "sites";
constexpr std::int64_t kVersion = 1;
/// A site holds an array of objects whose members may be objects; what lies deeper is no site's.
constexpr std::size_t kDeepest = 4;

/// Puts one value together from what a parser meets.
class ValueBuilder {
 public:
  bool isOpen() const { return !open_.empty(); }
  std::size_t depth() const { return open_.size(); }
  JsonValue& root() { return root_; }

  void begin(JsonValue container) {
    JsonValue* place = &put(std::move(container));
    open_.push_back(place);
  }
  void end() { open_.pop_back(); }
  /// How much the innermost container holds.
  std::size_t size() const {
    const JsonValue& container = *open_.back();
    const auto* const array = container.as<JsonValue::Array>();
    return array != nullptr ? array->size() : container.as<JsonValue::Object>()->size();
  }
  const std::string& lastKey() const { return key_; }
  bool isArray() const { return open_.back()->as<JsonValue::Array>() != nullptr; }
  /// False when the object has such a member already.
  bool key(std::string name) {
    key_ = std::move(name);
    return open_.back()->find(key_) == nullptr;
  }
  JsonValue& put(JsonValue value) {
    if (open_.empty()) {
      return root_ = std::move(value);
    }
    JsonValue& parent = *open_.back();
    if (parent.as<JsonValue::Array>() != nullptr) {
      return parent.add(std::move(value));
    }
    return parent[key_] = std::move(value);
  }

 private:
  JsonValue root_;
  /// A container does not grow while one inside it is open, so these stay where they are.
  std::vector<JsonValue*> open_;
  std::string key_;
};

/// Takes the sites out of the file, one after the other.
class ListHandler final : public nlohmann::json_sax<Json> {
 public:
  ListHandler(std::string_view text, const ListForm& form, const std::size_t& line, ListFaults& faults)
      : text_(text), form_(form), line_(line), faults_(faults) {}

  std::vector<ListedSite> sites() && { return std::move(sites_); }

  /// What is missing shows at the end.
  void finish() {
    if (!hasVersion_) {
      faults_.add(1, R"(the member "tarnwick": 1 is missing, so this is no list of sites: begin the file with )"
                     R"({"tarnwick": 1, "sites": [)");
    } else if (!hasSites_) {
      faults_.add(1, R"(the member "sites" is missing: give an array with an object for each site)");
    }
  }

  bool null() override { return value(nullptr); }
  bool boolean(bool flag) override { return value(flag); }
  bool number_integer(std::int64_t number) override { return value(number); }
  bool number_unsigned(std::uint64_t number) override { return value(number); }
  bool number_float(double number, const std::string& /*written*/) override { return value(number); }
  bool string(std::string& text) override { return value(std::move(text)); }
  bool binary(Json::binary_t& /*bytes*/) override { return false; }  // JSON has none

  bool start_object(std::size_t /*size*/) override {
    switch (place_) {
      case Place::outside:
        place_ = Place::list;
        return true;
      case Place::sites:
        if (++sitesMet_ > list_bound::sites) {
          faults_.add(line_, kTooManySites);
          return false;
        }
        place_ = Place::site;
        siteLine_ = line_;
        siteFaults_ = faults_.count();
        break;
      case Place::site:
      case Place::options:
      case Place::channels:
        break;
      case Place::list:
        if (key_ != list_name::options) {
          return misplaced();
        }
        place_ = Place::options;
        siteLine_ = line_;
        break;
    }
    return begin(JsonValue::object());
  }

  bool start_array(std::size_t /*size*/) override {
    if (place_ == Place::list && key_ == kSitesName) {
      place_ = Place::sites;
      return true;
    }
    if (place_ == Place::list && key_ == list_name::channels) {
      place_ = Place::channels;
      siteLine_ = line_;
    }
    return inValue() ? begin(JsonValue::array()) : misplaced();
  }

  bool key(std::string& name) override {
    if (place_ == Place::list) {
      return listKey(name);
    }
    if (builder_.size() == list_bound::members) {
      return tooMuch("an object of more than " + std::to_string(list_bound::members) + " members");
    }
    if (!builder_.key(name)) {
      faults_.add(siteLine_, "the member " + quotedForMessage(name) + " is given twice: leave one of them out");
    }
    return true;
  }

  bool end_object() override {
    if (place_ == Place::list) {
      place_ = Place::outside;
      return true;
    }
    builder_.end();
    if (!builder_.isOpen()) {
      if (std::exchange(place_, place_ == Place::options ? Place::list : Place::sites) == Place::options) {
        takeOptions();
      } else {
        takeSite();
      }
    }
    return true;
  }

  bool end_array() override {
    if (place_ == Place::sites) {
      place_ = Place::list;
    } else {
      builder_.end();
      if (!builder_.isOpen()) {
        place_ = Place::list;
        takeChannels();
      }
    }
    return true;
  }

  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const nlohmann::detail::exception& error) override {
    const std::string_view before = text_.substr(0, position == 0 ? 0 : position - 1);
    faults_.add(1 + static_cast<std::size_t>(std::ranges::count(before, '\n')),
                "this is no JSON: " + visibleText(causeIn(error.what())));
    return false;
  }

 private:
  enum class Place { outside, list, sites, site, options, channels };

  bool listKey(const std::string& name) {
    bool& seen = name == kSitesName            ? hasSites_
                 : name == list_name::options  ? hasOptions_
                 : name == list_name::channels ? hasChannels_
                                               : hasVersion_;
    if (&seen == &hasVersion_ && name != kVersionName) {
      faults_.add(line_, "there is no member " + quotedForMessage(name) +
                             R"( beside the sites: the members are "tarnwick", "options", "channels" and "sites")");
      return false;
    }
    if (std::exchange(seen, true)) {
      faults_.add(line_, "the member " + quotedForMessage(name) + " is given twice: leave one of them out");
      return false;
    }
    key_ = name;
    return true;
  }

  template <typename Value>
  bool value(Value value) {
    if (inValue()) {
      if (fullArray()) {
        return false;
      }
      builder_.put(JsonValue(std::move(value)));
      return true;
    }
    if (place_ != Place::list || key_ != kVersionName) {
      return misplaced();
    }
    const Json version(std::move(value));
    if (version != Json(kVersion)) {
      faults_.add(line_, "the file is of version " + quotedForMessage(version.dump()) +
                             " of the list's format, and version 1 can be read: export it with the same program");
      return false;
    }
    return true;
  }

  bool begin(JsonValue container) {
    if (builder_.depth() == kDeepest) {
      faults_.add(siteLine_, "the site holds objects in objects that no member has: leave them out");
      return false;
    }
    if (builder_.isOpen() && fullArray()) {
      return false;
    }
    builder_.begin(std::move(container));
    return true;
  }

  bool tooMuch(const std::string& what) {
    faults_.add(siteLine_, "the site holds " + what + ", and none has so many: leave them out");
    return false;
  }

  bool fullArray() {
    const std::size_t most = builder_.lastKey() == list_name::history ? list_bound::lines : list_bound::elements;
    return builder_.isArray() && builder_.size() == most &&
           !tooMuch("an array of more than " + std::to_string(most) + " values");
  }

  bool misplaced() {
    faults_.add(line_, place_ == Place::sites
                           ? "the array \"sites\" holds something else than objects: give an object for each site"
                           : R"(this is no list of sites: it has the form {"tarnwick": 1, "sites": [{...}, ...]})");
    hasVersion_ = hasSites_ = true;
    return false;
  }

  bool inValue() const { return place_ == Place::site || place_ == Place::options || place_ == Place::channels; }

  // They stand in the list as what is set for the site 0.
  void takeOptions() {
    ListedSite& all = siteOfAll();
    all.given.set(list_name::options);
    ListValues values(siteLine_, faults_);
    readOptionsOfJson(builder_.root(), form_.fields(), all.options, values);
  }

  void takeChannels() {
    ListedSite& all = siteOfAll();
    all.given.set(list_name::channels);
    ListValues values(siteLine_, faults_);
    readChannelsOfJson(builder_.root(), all.channels, values);
  }

  ListedSite& siteOfAll() {
    const auto all = std::ranges::find(sites_, std::optional(kAllSites), &ListedSite::idSite);
    if (all != sites_.end()) {
      return *all;
    }
    ListedSite fresh;
    fresh.line = siteLine_;
    fresh.idSite = kAllSites;
    return sites_.emplace_back(std::move(fresh));
  }

  void takeSite() {
    if (faults_.count() == siteFaults_) {
      if (auto site = siteOfJson(builder_.root(), form_, siteLine_, faults_)) {
        sites_.push_back(std::move(*site));
      }
    }
  }

  // The library's text without its own place and number.
  static std::string_view causeIn(std::string_view text) {
    const std::size_t column = text.find("column ");
    const std::size_t end = column == std::string_view::npos ? column : text.find(": ", column);
    const std::size_t number = text.find("] ");
    return end != std::string_view::npos      ? text.substr(end + 2)
           : number != std::string_view::npos ? text.substr(number + 2)
                                              : text;
  }

  std::string_view text_;
  const ListForm& form_;
  const std::size_t& line_;
  ListFaults& faults_;
  Place place_ = Place::outside;
  std::string key_;
  bool hasVersion_ = false;
  bool hasSites_ = false;
  bool hasOptions_ = false;
  bool hasChannels_ = false;
  ValueBuilder builder_;
  std::size_t siteLine_ = 0;
  std::size_t siteFaults_ = 0;
  std::size_t sitesMet_ = 0;
  std::vector<ListedSite> sites_;
};

}  // namespace

std::vector<ListedSite> readSiteListJson(std::string_view text, ListFaults& faults, const Fields& fields) {
  const ListForm form(fields);
  std::size_t line = 1;
  ListHandler handler(text, form, line, faults);
  const bool whole = Json::sax_parse(LineCounter(text.data(), line), LineCounter(text.data() + text.size(), line),
                                     &handler, Json::input_format_t::json);
  if (whole) {
    handler.finish();
  }
  return std::move(handler).sites();
}

}  // namespace tarnwick
