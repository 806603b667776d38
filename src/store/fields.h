// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/nothing.h"
#include "store/option_table.h"
#include "store/site_draft.h"

namespace tarnwick {

/// What a field holds, and so what a front end offers for it.
enum class FieldKind {
  text,     ///< any bytes
  secret,   ///< a text that is shown only when asked for
  address,  ///< of a page, fetched by one of the schemes that are fetched
  mail,     ///< one mail address
  method,   ///< "get" or "post"
  minutes,  ///< a whole number, 1 to 32767
  seconds,  ///< a whole number, 0 or more
  file,     ///< the path of a file, or a command line
  flag,     ///< a yes/no
};

/// The value of a field: a yes/no of the kind `flag`, a text of all others.
using FieldValue = std::variant<std::string, bool, Nothing>;

/// A field of a site that its user sets. Its name is that of the column, of the member in JSON and of the column in
/// CSV.
struct SiteField {
  std::string name;
  FieldKind kind = FieldKind::text;
  /// Where it stands in a draft; nothing for a field that stands in `SiteDraft::further`, a flag as "True" or "False".
  std::variant<std::monostate, std::string SiteDraft::*, bool SiteDraft::*> member{};
  std::string label;    ///< a word or two for people: "Interval"
  std::string meaning;  ///< for a help text, without a full stop: "The time between two checks, 1 to 32767 minutes"
};

FieldValue valueOf(const SiteField& field, const SiteDraft& site);
void setValue(const SiteField& field, SiteDraft& site, const FieldValue& value);

/// A setting: a column of the one row of table `control`.
struct SettingField {
  std::string name;
  FieldKind kind = FieldKind::text;
  std::string label;    ///< a word or two for people: "Mail server"
  std::string meaning;  ///< without a full stop: "the mail server that alert mails are handed to"
};

/// What can be set: each thing is described once, and window, terminal, import, export and JSON are fed from here.
struct Fields {
  std::vector<SiteField> site;         ///< in the order in which they are shown and written
  std::vector<SettingField> settings;  ///< likewise
  std::vector<OptionField> options;    ///< likewise
};

/// The fields of this program.
const Fields& programFields();

}  // namespace tarnwick
