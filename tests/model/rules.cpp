// SPDX-License-Identifier: MIT
// The rules that need no state: which sites are due, how a page is judged, what a report counts, what is shown.

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "model/model.h"

namespace tarnwick::model {
namespace {

constexpr int kUsualTimeout = 60;
constexpr auto kFormHeader = "Content-Type: application/x-www-form-urlencoded";

// Capital letters as a web server expects them in a method, whatever the system's language is.
std::string upperCase(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z')
      c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

}  // namespace

// Blanks around a stored text do not count.
std::string trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos)
    return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Another tool may have stored any number for a yes.
bool isYes(Flag flag) { return flag.value_or(0) != 0; }

// Row tables are tables of texts, and a Null is the four letters there, for the request as well.
std::string rowText(const Text& value) { return value.value_or("NULL"); }

// Nothing sensible stored means a minute: a request must never wait for ever.
int timeoutOf(const Settings& settings) {
  const std::string text = trimmed(settings.timeout.value_or(""));
  int seconds = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), seconds);
  return parsed.ec == std::errc() && seconds > 0 ? seconds : kUsualTimeout;
}

// Only a POST carries a body and the form header; every other method goes out bare, as it is written.
Request requestFor(const Site& row, const std::string& postBody, int timeout) {
  const std::string stored = upperCase(rowText(row.method));
  const bool post = stored == "POST";
  return {row.id,
          rowText(row.url),
          stored.empty() ? "GET" : stored,
          rowText(row.userName),
          rowText(row.passWord),
          post ? kFormHeader : "",
          post ? postBody : "",
          timeout};
}

// Nothing to reckon with for a site that was never checked or has no interval.
std::optional<std::int64_t> secondsLeft(const Site& site, Time now) {
  if (!site.lastChecked || !site.interval)
    return std::nullopt;
  return std::int64_t{*site.interval} * 60 - (now - *site.lastChecked).count();
}

// Due-ness counts the changes of the clock's minute, not whole minutes gone by.
bool isDue(const Site& site, Time now, NewSites newSites) {
  using std::chrono::floor, std::chrono::minutes;
  if (!isYes(site.active))
    return false;
  if (!site.lastChecked)
    return newSites == NewSites::kAtOnce;
  return site.interval && (floor<minutes>(now) - floor<minutes>(*site.lastChecked)).count() >= *site.interval;
}

// In order of the ids, as the passes take them.
std::vector<int> dueSites(const Sites& sites, Time now, NewSites newSites, const std::set<int>& atOnce) {
  std::vector<int> ids;
  for (const auto& [id, site] : sites) {
    if (isDue(site, now, newSites) || (isYes(site.active) && atOnce.contains(id)))
      ids.push_back(id);
  }
  return ids;
}

// What Start takes: every site that is watched, due or not.
std::vector<int> activeSites(const Sites& sites) {
  std::vector<int> ids;
  for (const auto& [id, site] : sites) {
    if (isYes(site.active))
      ids.push_back(id);
  }
  return ids;
}

// The soonest active site leads. One without a stamp sorts before all others and reads as 0, as does an empty list.
std::int64_t secondsToSoonest(const Sites& sites, Time now, const std::set<int>& atOnce) {
  std::optional<std::int64_t> soonest;
  for (const int id : activeSites(sites)) {
    const auto left = secondsLeft(sites.at(id), now);
    if (!left)
      return 0;
    const std::int64_t wait = atOnce.contains(id) ? std::min<std::int64_t>(*left, 0) : *left;
    soonest = std::min(soonest.value_or(wait), wait);
  }
  return soonest.value_or(0);
}

// One tick: only a countdown that ran out asks the data again, so an edit shows no sooner than that.
std::int64_t countdownStep(std::int64_t seconds, std::int64_t toSoonest) {
  return seconds - 1 < 0 ? toSoonest : seconds - 1;
}

// A site is up when its page is the baseline, byte for byte. The first page becomes the baseline, and so does the text
// of a failure unless only pages may be adopted; then neither does a page that is less than half as long as the one
// before. The error code has no say.
Judgement judge(const std::string& baseline, const std::string& before, const Answer& answer, Adopt adopt) {
  const bool failed = answer.kind == Answer::Kind::kFailed;
  Judgement result;
  result.content = failed ? "11:" + answer.text : answer.page;
  const bool shrunk = !before.starts_with("11:") && result.content.size() * 2 < before.size();
  result.adopted = baseline.empty() && (adopt == Adopt::kAnything || (!failed && !shrunk));
  if (baseline.empty() && adopt == Adopt::kPagesOnly && !failed && shrunk)
    result.remark = "The page has less than half the length of the one before, and was not taken as the baseline.";
  result.baseline = result.adopted ? result.content : baseline;
  result.up = result.content == result.baseline;
  if (!result.up)
    result.logged = result.content;
  return result;
}

// No value: the counter is full, which is an error and never a wrap.
std::optional<int> counterPlusOne(std::optional<int> counter) {
  const int value = counter.value_or(0);
  return value >= kHighestCount ? std::nullopt : std::optional(value + 1);
}

// Never invisible and never wider than the column.
std::optional<int> barWidth(int count) {
  if (count > kHighestCount - 5)
    return std::nullopt;
  return std::min(count + 5, 100);
}

// The rows of the local day, one line for each address and outcome, failures before successes.
ReportFigures reportFigures(const std::vector<LogRow>& log, Time now) {
  using std::chrono::floor, std::chrono::days;
  std::map<std::pair<std::string, bool>, int> totals;
  ReportFigures figures;
  for (const LogRow& row : log) {
    if (floor<days>(row.dateStamp) != floor<days>(now))
      continue;
    ++totals[{row.url, row.status}];
    ++figures.entries;
    ++(row.status ? figures.successes : figures.errors);
  }
  for (const auto& [key, total] : totals)
    figures.lines.push_back({key.first, total, key.second, barWidth(total)});
  return figures;
}

// Two digits each: from a hundred hours on the leading ones are lost.
std::string countdownText(std::int64_t seconds) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", static_cast<int>(seconds / 3600 % 100),
                static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60));
  return text.data();
}

// Three digits of hours: a run lasts for weeks.
std::string runClockText(std::int64_t seconds) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "Run Time: %03lld:%02d:%02d", static_cast<long long>(seconds / 3600),
                static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60));
  return text.data();
}

// Grey hides the last result of a site that is not watched; one never judged is left white.
std::string rowColour(const Site& site) {
  if (!isYes(site.active))
    return "&hA0A0A0";
  if (!site.status)
    return "&hFFFFFF";
  return isYes(site.status) ? "&h9FDB73" : "&h3030C0";
}

// Red, yellow, green: exactly one is bright.
std::array<std::string, 3> lampColours(Lamp lit) {
  return {lit == Lamp::kStop ? "&H0000FF" : "&H0000A0", lit == Lamp::kPause ? "&H00FFFF" : "&H00A0A0",
          lit == Lamp::kStart ? "&H00FF00" : "&H00A000"};
}

// One above the highest; the highest id of all is given out again once its site is gone.
int newSiteId(const Sites& sites) { return sites.empty() ? 1 : sites.rbegin()->first + 1; }

}  // namespace tarnwick::model
