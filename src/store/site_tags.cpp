// SPDX-License-Identifier: MIT
#include "store/site_tags.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/text.h"
#include "base/visible_text.h"
#include "store/migrations.h"
#include "store/table_there.h"

namespace tarnwick {
namespace {

bool mayStandInTag(char byte) {
  return static_cast<unsigned char>(byte) > ' ' && byte != '\x7f' &&
         std::string_view(",;\"'").find(byte) == std::string_view::npos;
}

bool isIn(const Tags& tags, std::string_view tag) {
  return std::ranges::any_of(tags, [&](const std::string& one) { return equalsIgnoringCase(one, tag); });
}

/// Alphabetical whatever the letter case.
void sort(Tags& tags) {
  std::ranges::sort(tags, [](const std::string& one, const std::string& other) {
    const std::string first = lowerCase(one);
    const std::string second = lowerCase(other);
    return first != second ? first < second : one < other;
  });
}

}  // namespace

std::string faultOfTag(std::string_view text) {
  const std::string quoted = "\"" + visibleText(text, kLongestTag) + "\"";
  if (text.empty() || text.size() > kLongestTag) {
    return quoted + " is no tag: give 1 to " + std::to_string(kLongestTag) + " bytes.";
  }
  if (text.starts_with('-') || !std::ranges::all_of(text, &mayStandInTag) || !isUtf8(text)) {
    return quoted + " is no tag: give a word without blanks, commas, semicolons and quotes, and no - before it.";
  }
  return "";
}

Tags withTags(Tags tags, const Tags& more) {
  for (const std::string& tag : more) {
    if (!isIn(tags, tag)) {
      tags.push_back(tag);
    }
  }
  sort(tags);
  return tags;
}

Tags withoutTags(Tags tags, const Tags& gone) {
  std::erase_if(tags, [&](const std::string& tag) { return isIn(gone, tag); });
  return tags;
}

bool SiteTags::hasTable() { return tarnwick::hasTable(db_, "siteTags"); }

Tags SiteTags::tagsOf(std::int16_t idSite) {
  Tags tags;
  if (!hasTable()) {
    return tags;
  }
  const SqlValue id(std::int64_t{idSite});
  const auto rows = db_.conn().execute("select tag from siteTags where idSite = ?1", {&id, 1});
  for (; !rows->eof(); rows->moveNext()) {
    tags.push_back(rows->field(std::size_t{0}).toText());
  }
  rows->close();
  sort(tags);
  return tags;
}

std::map<std::int64_t, Tags> SiteTags::tagsOfSites() {
  std::map<std::int64_t, Tags> sites;
  if (!hasTable()) {
    return sites;
  }
  const auto rows = db_.conn().execute("select idSite, tag from siteTags", std::span<const SqlValue>());
  for (; !rows->eof(); rows->moveNext()) {
    sites[rows->field(std::size_t{0}).toInt64()].push_back(rows->field(std::size_t{1}).toText());
  }
  rows->close();
  for (auto& [id, tags] : sites) {
    sort(tags);
  }
  return sites;
}

void SiteTags::storeTags(std::int16_t idSite, const Tags& tags) {
  if (tags.empty() && !hasTable()) {
    return;
  }
  requireTodaysForm(db_.conn(), db_.dbPath());
  Transaction whole(db_);
  removeTagsOf(idSite);
  for (const std::string& tag : tags) {
    const std::array<SqlValue, 2> row{SqlValue(std::int64_t{idSite}), SqlValue(tag)};
    db_.conn().execute("insert into siteTags (idSite, tag) values (?1, ?2)", row)->close();
  }
  whole.commit();
}

void SiteTags::removeTagsOf(std::int64_t idSite) {
  if (hasTable()) {
    const SqlValue id(idSite);
    db_.conn().execute("delete from siteTags where idSite = ?1", {&id, 1})->close();
  }
}

}  // namespace tarnwick
