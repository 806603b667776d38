// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/foreign/foreign_list.h"

namespace tarnwick {

/// Raised by the readers for a file that cannot be read; it becomes a fault on that line.
class ForeignError : public std::runtime_error {
 public:
  ForeignError(std::size_t line, const std::string& text) : std::runtime_error(text), line_(line) {}
  std::size_t line() const { return line_; }

 private:
  std::size_t line_;
};

/// One site of such a file while it is read: what has a place in a list, and what has none.
class ForeignSite {
 public:
  ForeignSite(std::size_t line, std::string_view url);

  void setMethod(std::string_view method);
  void setActive(bool active);
  /// From the seconds between two checks.
  void setInterval(double seconds);
  /// A request header. The name and password of the simplest kind have a place; the value of another may be a secret
  /// and is not told.
  void setHeader(const std::string& name, const std::string& value);
  void addPostVar(std::string name, std::string value);
  /// What is sent with the request: form variables, or what has no place.
  void setBody(std::string_view body);
  void setCredentials(std::string name, std::string password);
  /// Names something that is not taken over.
  void lacks(std::string thing) { lacking_.push_back(std::move(thing)); }
  /// The same with its value, unless that is empty.
  void lacks(const std::string& name, std::string_view value);

  ListedSite& listed() { return site_; }
  std::vector<std::string>& lacking() { return lacking_; }

 private:
  ListedSite site_;
  std::vector<std::string> lacking_;
};

/// Puts the list together.
class ForeignSites {
 public:
  explicit ForeignSites(ForeignList& list) : list_(list) {}

  /// Adds a site, or leaves it out when its address cannot be watched. Raises ForeignError for more sites than a list
  /// holds.
  void add(ForeignSite site);
  void leaveOut(std::size_t line, std::string_view subject, std::string why);
  /// Notes what is not taken over of the whole file.
  void lacks(std::string thing);
  ForeignList& list() { return list_; }

 private:
  ForeignList& list_;
};

/// A file inside a zip archive.
struct ZipMember {
  std::string name;
  std::string bytes;
};
using ZipFilter = std::function<bool(std::string_view name)>;
/// The files of an archive whose names are wanted. Raises ForeignError for an archive that is damaged, or whose files
/// are larger than any list.
std::vector<ZipMember> zipMembers(std::string_view bytes, const ZipFilter& isWanted);

void readAddresses(std::string_view text, ForeignSites& sites);
void readBookmarks(std::string_view text, ForeignSites& sites);
void readOpml(std::string_view text, ForeignSites& sites);
void readUrlwatch(std::string_view text, ForeignSites& sites);
void readChangedetection(std::string_view bytes, ForeignSites& sites);
void readJet(std::string_view bytes, ForeignSites& sites);

}  // namespace tarnwick
