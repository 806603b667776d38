// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "holes/page_rule.h"
#include "platform/file_system.h"
#include "store/adoption.h"
#include "store/baselines.h"
#include "store/channels.h"
#include "store/fields.h"
#include "store/kept_history.h"
#include "store/site_options.h"
#include "store/site_tags.h"

namespace tarnwick {

/// What a file of the list of sites tells of a site: a column of CSV, a member of a JSON object. What checks have found
/// is no part of it.
struct ListField {
  enum class Role { idSite, siteField, postVars, baseline, options, rules, tags, kept, history };

  std::string name;
  Role role = Role::siteField;
  /// The field of a site, of that role.
  const SiteField* field = nullptr;
};

/// What such files are made of: the fields of a site, and what stands around them.
class ListForm {
 public:
  /// `fields` outlives this object.
  explicit ListForm(const Fields& fields);

  /// In the order in which they are written.
  const std::vector<ListField>& all() const { return all_; }
  /// The one of that name, in any letter case; nothing when there is none.
  const ListField* find(std::string_view name) const;
  /// All names, for a message.
  std::string names() const;
  const Fields& fields() const { return fields_; }

 private:
  const Fields& fields_;
  std::vector<ListField> all_;
};

/// Names of those that stand beside the fields of a site.
namespace list_name {
inline constexpr std::string_view idSite = "idSite";
inline constexpr std::string_view url = "url";
inline constexpr std::string_view channels = "channels";
inline constexpr std::string_view method = "method";
inline constexpr std::string_view postVars = "postVars";
inline constexpr std::string_view baseline = "baseline";
inline constexpr std::string_view options = "options";
inline constexpr std::string_view rules = "rules";
inline constexpr std::string_view tags = "tags";
inline constexpr std::string_view kept = "baselines";
inline constexpr std::string_view history = "history";
}  // namespace list_name

/// Fields of a file, by their names.
class ListFields {
 public:
  bool has(std::string_view name) const { return names_.contains(name); }
  void set(std::string_view name) { names_.emplace(name); }
  bool none() const { return names_.empty(); }
  std::vector<std::string> names() const { return {names_.begin(), names_.end()}; }

 private:
  std::set<std::string, std::less<>> names_;
};

/// A channel of the file.
struct ListedChannel {
  /// With the id 0.
  Channel channel;
  /// Its password or token, where the file has it.
  std::optional<std::string> secret{};
};

/// A site of the file; with the id 0 what is set for all of them, which is options and channels.
struct ListedSite {
  /// Where it begins in the file, from 1.
  std::size_t line = 0;
  std::optional<std::int16_t> idSite;
  /// What the file leaves out is as for a new site: fetched with GET every 10 minutes.
  SiteDraft site{"", "get", true, "10", false, "", "", ""};
  std::vector<PostVar> postVars;
  std::string baseline;
  OptionValues options;
  /// Of all sites.
  std::vector<ListedChannel> channels;
  RuleSet rules;
  Tags tags;
  /// The earlier and further baselines.
  std::vector<ListedBaseline> kept;
  /// How it has been.
  KeptHistory history;
  /// What checks have found, of a site that comes from another database; it counts for a site that is added.
  std::optional<CheckedState> state{};
  /// What the file tells of the site.
  ListFields given;
};

/// What a file may hold at most: more than any list has, and little enough for time and memory.
namespace list_bound {
inline constexpr std::size_t sites = 32767;     ///< there are no more ids
inline constexpr std::size_t fields = 1000;     ///< of a row of CSV
inline constexpr std::size_t members = 100;     ///< of a JSON object
inline constexpr std::size_t elements = 10000;  ///< of a JSON array, and variables of a site
inline constexpr std::size_t lines = 1000000;   ///< of the history of a site: a century of hours
}  // namespace list_bound

/// The fault of a file with more sites.
inline constexpr const char* kTooManySites =
    "the file holds more than 32767 sites, and a list has no ids for more: leave some out";

/// What is wrong with a file, line by line. Keeps the first faults and counts the others.
class ListFaults {
 public:
  static constexpr std::size_t kMostKept = 20;

  struct Fault {
    std::size_t line;
    std::string text;
  };

  /// REQUIRES: `text` names the thing and the remedy, and is fit for a terminal.
  void add(std::size_t line, std::string text);
  bool none() const { return count_ == 0; }
  std::size_t count() const { return count_; }
  /// In the order of the lines.
  std::vector<Fault> kept() const;

 private:
  std::vector<Fault> faults_;
  std::size_t count_ = 0;
};

/// Raised for a file that cannot be imported.
class SiteListError : public std::runtime_error {
 public:
  explicit SiteListError(const ListFaults& faults);
  const ListFaults& faults() const { return faults_; }

 private:
  ListFaults faults_;
};

/// The values of the fields as texts, read by both formats: nothing for a text that is none, and the fault added.
class ListValues {
 public:
  ListValues(std::size_t line, ListFaults& faults) : line_(line), faults_(faults) {}

  /// From 1 to 32767.
  std::optional<std::int16_t> id(std::string_view text);
  /// From 1 to 32767 minutes, as it is stored.
  std::optional<std::string> interval(const std::string& name, std::string_view text);
  std::optional<bool> yesNo(const std::string& name, std::string_view text);
  /// "get" or "post" in any letter case, as it is written.
  std::optional<std::string> method(const std::string& name, std::string_view text);
  /// What a field of a site holds, by its kind.
  std::optional<FieldValue> value(const SiteField& field, std::string text);
  /// Takes an option into `options`.
  void option(const Fields& fields, OptionValues& options, std::string_view name, std::string_view text);
  std::optional<std::string> baseline(std::string bytes);
  /// Takes a rule or a hole into `rules`.
  void rule(RuleSet& rules, std::string_view text);
  /// Takes a tag into `tags`.
  void tag(Tags& tags, std::string_view text);
  /// Takes an earlier or further baseline, as `textOf` writes it.
  void kept(std::vector<ListedBaseline>& baselines, std::string_view text);

  void fault(std::string text) { faults_.add(line_, std::move(text)); }

 private:
  std::optional<std::int16_t> number(std::string_view text, std::string_view name, const std::string& remedy);

  std::size_t line_;
  ListFaults& faults_;
};

/// An earlier or further baseline in one line: "also 2026-11-23 04:00:00 " and the page in base64.
std::string textOf(const ListedBaseline& baseline);

/// A text of a file as it stands in a message: between quotes, on one line, not too long.
std::string quotedForMessage(std::string_view text);
/// What `text` is without the blanks and tabs around it.
std::string_view withoutBlanks(std::string_view text);

/// Which fields are written.
struct ListColumns {
  bool passwords = true;
  bool baselines = false;
  /// Options are written when any is set: without one a file is as it always was.
  bool options = false;
  /// Rules are written when any site has some, for the same reason.
  bool rules = false;
  /// The same of tags, and with `baselines` of earlier and further ones.
  bool tags = false;
  bool kept = false;
  bool history = false;

  bool has(const ListField& field) const {
    return (field.field == nullptr || field.field->kind != FieldKind::secret || passwords) &&
           (field.role != ListField::Role::baseline || baselines) &&
           (field.role != ListField::Role::options || options) && (field.role != ListField::Role::rules || rules) &&
           (field.role != ListField::Role::tags || tags) && (field.role != ListField::Role::kept || kept) &&
           (field.role != ListField::Role::history || history);
  }
};

/// Writes a file of the list: its beginning, each site, its end.
class SiteListWriter {
 public:
  virtual ~SiteListWriter() = default;
  /// `ofAll` is set for all sites. Channels have no place in CSV.
  virtual void begin(const OptionValues& ofAll = {}, const std::vector<ListedChannel>& channels = {}) = 0;
  virtual void add(const ListedSite& site) = 0;
  virtual void end() = 0;
};

}  // namespace tarnwick
