// SPDX-License-Identifier: MIT
#include "report/metrics_text.h"

#include <array>
#include <charconv>
#include <functional>

#include "report/shown_sites.h"
#include "store/history_view.h"
#include "store/site_certificates.h"

namespace tarnwick {
namespace {

/// The value of a label.
std::string labelText(std::string_view text) {
  std::string safe;
  for (const char c : text) {
    if (c == '\\' || c == '"') {
      safe += '\\';
    }
    safe += c == '\n' ? "\\n" : std::string(1, c);
  }
  return safe;
}

using Tell = std::function<void(const std::string& label, double value)>;

/// One family of figures: of each site those that there are.
struct Family {
  const char* name;
  const char* type;
  const char* help;
  std::function<void(const ShownSite&, const Tell&)> figures;
};

std::vector<Family> families(SiteHistory& history) {
  constexpr double kMillisecondsOfASecond = 1000;
  return {
      {"tarnwick_site_active", "gauge", "Whether the site is checked.",
       [](const ShownSite& site, const Tell& tell) { tell("", site.active ? 1 : 0); }},
      {"tarnwick_site_up", "gauge", "Whether the latest check has passed.",
       [](const ShownSite& site, const Tell& tell) {
         if (site.up) {
           tell("", *site.up ? 1 : 0);
         }
       }},
      {"tarnwick_site_checks_total", "counter", "Checks since the counters were cleared.",
       [](const ShownSite& site, const Tell& tell) {
         tell("result=\"passed\"", static_cast<double>(site.success));
         tell("result=\"failed\"", static_cast<double>(site.failure));
       }},
      {"tarnwick_site_last_check_timestamp_seconds", "gauge", "When the latest check of the history was made.",
       [latest = history.latestChecks()](const ShownSite& site, const Tell& tell) {
         if (const auto check = latest.find(site.idSite); check != latest.end()) {
           tell("", static_cast<double>(check->second.at.time_since_epoch().count()));
         }
       }},
      {"tarnwick_site_response_seconds", "gauge", "How long the parts of the latest request took.",
       [all = latestTimings(history)](const ShownSite& site, const Tell& tell) {
         const auto found = all.find(site.idSite);
         if (found == all.end()) {
           return;
         }
         const auto part = [&](const char* label, std::optional<std::chrono::milliseconds> time) {
           if (time) {
             tell(std::string("part=\"") + label + "\"", static_cast<double>(time->count()) / kMillisecondsOfASecond);
           }
         };
         part("lookup", found->second.lookUp);
         part("connect", found->second.connect);
         part("tls", found->second.tls);
         part("first_byte", found->second.firstByte);
         part("whole", found->second.whole);
       }},
      {"tarnwick_site_certificate_expiry_timestamp_seconds", "gauge",
       "When the certificate ends; the days that are left are (this - time()) / 86400.",
       [known = SiteCertificates(history.database()).certificates(readOptions(history.database()))](
           const ShownSite& site, const Tell& tell) {
         if (const auto own = known.find(site.idSite); own != known.end()) {
           tell("", static_cast<double>(own->second.ends.time_since_epoch().count()));
         }
       }},
  };
}

std::string numberText(double value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
  return {text.data(), end.ptr};
}

}  // namespace

TextInParts metricsText(SiteHistory& history) {
  constexpr std::size_t kPiece = 1000;
  std::string text;
  std::vector<ShownSite> sites;
  while (readMoreSites(history.database(), sites)) {
    co_await letOthersGoOn;
  }
  co_await letOthersGoOn;
  for (const Family& family : families(history)) {
    text +=
        std::string("# HELP ") + family.name + " " + family.help + "\n# TYPE " + family.name + " " + family.type + "\n";
    for (std::size_t i = 0; i < sites.size(); ++i) {
      if (i % kPiece == 0) {
        co_await letOthersGoOn;
      }
      const ShownSite& site = sites[i];
      family.figures(site, [&](const std::string& label, double value) {
        text += std::string(family.name) + "{id=\"" + std::to_string(site.idSite) + "\",url=\"" +
                labelText(site.address) + "\"" + (label.empty() ? "" : "," + label) + "} " + numberText(value) + "\n";
      });
    }
  }
  co_return text;
}

}  // namespace tarnwick
