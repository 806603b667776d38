// SPDX-License-Identifier: MIT
#include "store/fields.h"

namespace tarnwick {
namespace {

constexpr std::string_view kTrue = "True";
constexpr std::string_view kFalse = "False";

}  // namespace

FieldValue valueOf(const SiteField& field, const SiteDraft& site) {
  if (const auto* text = std::get_if<std::string SiteDraft::*>(&field.member)) {
    return site.*(*text);
  }
  if (const auto* flag = std::get_if<bool SiteDraft::*>(&field.member)) {
    return site.*(*flag);
  }
  const auto found = site.further.find(field.name);
  const std::string text = found == site.further.end() ? std::string() : found->second;
  return field.kind == FieldKind::flag ? FieldValue(text == kTrue) : FieldValue(text);
}

void setValue(const SiteField& field, SiteDraft& site, const FieldValue& value) {
  if (const auto* text = std::get_if<std::string SiteDraft::*>(&field.member)) {
    site.*(*text) = std::get<std::string>(value);
  } else if (const auto* flag = std::get_if<bool SiteDraft::*>(&field.member)) {
    site.*(*flag) = std::get<bool>(value);
  } else if (const auto* yesNo = std::get_if<bool>(&value)) {
    site.further[field.name] = *yesNo ? kTrue : kFalse;
  } else {
    site.further[field.name] = std::get<std::string>(value);
  }
}

const Fields& programFields() {
  using Kind = FieldKind;
  static const Fields fields{
      .site =
          {
              {"url", Kind::address, &SiteDraft::url, "Address", "The address of the page: http, https, ftp or ftps"},
              {"method", Kind::method, &SiteDraft::method, "Method", "How the page is fetched"},
              {"active", Kind::flag, &SiteDraft::active, "Active", "Whether runs check it"},
              {"tInterval", Kind::minutes, &SiteDraft::tInterval, "Interval",
               "The time between two checks, 1 to 32767 minutes"},
              {"alertEmail", Kind::flag, &SiteDraft::alertEmail, "Alert mails", "Whether its failures are mailed"},
              {"email", Kind::mail, &SiteDraft::email, "Mail address", "Mail its failures to this address"},
              {"sUserName", Kind::text, &SiteDraft::sUserName, "User name", "The user name for the fetch"},
              {"sPassWord", Kind::secret, &SiteDraft::sPassWord, "Password", "The password for the fetch"},
          },
      .settings =
          {
              {"email", Kind::mail, "Sender", "the address that alert mails come from"},
              {"smtp", Kind::text, "Mail server", "the mail server that alert mails are handed to"},
              {"audio", Kind::file, "Sound", "the .wav file that an alert plays"},
              {"program", Kind::file, "Program", "the program that an alert starts"},
              {"timeout", Kind::seconds, "Time-out", "how long a fetch may take, in seconds"},
              {"clogs", Kind::flag, "Log", "write every result to the log"},
              {"creports", Kind::flag, "Report", "write the daily report during a run"},
              {"cemail", Kind::flag, "Mail", "send alert mails"},
              {"caudio", Kind::flag, "Play sound", "play the alert sound"},
              {"cprogram", Kind::flag, "Start program", "start the alert program"},
          },
      .options = programOptions(),
  };
  return fields;
}

}  // namespace tarnwick
