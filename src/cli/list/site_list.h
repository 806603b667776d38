#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/file_system.h"
#include "program/site_draft.h"

namespace tarnwick {

/// What a file of the list of sites tells of a site: columns of CSV, members of a JSON object. What checks have found
/// is no part of it.
enum class ListField : std::size_t {
  idSite,
  url,
  method,
  active,
  tInterval,
  alertEmail,
  email,
  sUserName,
  sPassWord,
  postVars,
  baseline
};
inline constexpr std::size_t kListFieldCount = 11;
/// Their names, in the order in which they are written.
inline constexpr std::array<std::string_view, kListFieldCount> kListFieldNames{
    "idSite", "url",       "method",    "active",   "tInterval", "alertEmail",
    "email",  "sUserName", "sPassWord", "postVars", "baseline"};

inline constexpr std::string_view nameOf(ListField field) { return kListFieldNames[static_cast<std::size_t>(field)]; }
/// The field of that name, in any letter case; nothing when there is none.
std::optional<ListField> listFieldOf(std::string_view name);
/// All names, for a message.
std::string listFieldNames();

/// Fields of a site.
class ListFields {
 public:
  bool has(ListField field) const { return bits_[static_cast<std::size_t>(field)]; }
  void set(ListField field, bool value = true) { bits_[static_cast<std::size_t>(field)] = value; }
  bool none() const { return bits_.none(); }

 private:
  std::bitset<kListFieldCount> bits_;
};

/// A site of the file.
struct ListedSite {
  /// Where it begins in the file, from 1.
  std::size_t line = 0;
  std::optional<std::int16_t> idSite;
  /// What the file leaves out is as for a new site: fetched with GET every 10 minutes.
  SiteDraft site{"", "get", true, "10", false, "", "", ""};
  std::vector<PostVar> postVars;
  std::string baseline;
  /// What the file tells of the site.
  ListFields given;
};

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
  std::optional<std::string> interval(std::string_view text);
  std::optional<bool> yesNo(ListField field, std::string_view text);
  /// "get" or "post" in any letter case, as it is written.
  std::optional<std::string> method(std::string_view text);
  std::optional<std::string> baseline(std::string bytes);

  void fault(std::string text) { faults_.add(line_, std::move(text)); }

 private:
  std::optional<std::int16_t> number(std::string_view text, ListField field, const std::string& remedy);

  std::size_t line_;
  ListFaults& faults_;
};

/// A text of a file as it stands in a message: between quotes, on one line, not too long.
std::string quotedForMessage(std::string_view text);
/// What `text` is without the blanks and tabs around it.
std::string_view withoutBlanks(std::string_view text);

/// Which fields are written.
struct ListColumns {
  bool passwords = true;
  bool baselines = false;
  bool has(ListField field) const {
    return (field != ListField::sPassWord || passwords) && (field != ListField::baseline || baselines);
  }
};

/// Writes a file of the list: its beginning, each site, its end.
class SiteListWriter {
 public:
  virtual ~SiteListWriter() = default;
  virtual void begin() = 0;
  virtual void add(const ListedSite& site) = 0;
  virtual void end() = 0;
};

}  // namespace tarnwick
