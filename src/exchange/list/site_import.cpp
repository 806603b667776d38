// SPDX-License-Identifier: MIT
#include "exchange/list/site_import.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <limits>
#include <unordered_map>
#include <utility>

#include "base/one_line.h"
#include "exchange/list/site_list_stored.h"
#include "platform/address.h"

namespace tarnwick {
namespace {

using Action = ImportStep::Action;

constexpr std::int64_t kHighestId = std::numeric_limits<std::int16_t>::max();

/// Takes what the file gives into `stored`, and notes what differs.
class Merge {
 public:
  Merge(const ListFields& given, ListFields& changed) : given_(given), changed_(changed) {}

  template <typename Value>
  void take(std::string_view name, Value& listed, Value stored) {
    if (!given_.has(name)) {
      listed = std::move(stored);
    } else if (listed != stored) {
      changed_.set(name);
    }
  }

 private:
  const ListFields& given_;
  ListFields& changed_;
};

/// An address as it is fetched, which is the same for all ways to write it.
std::string fetchedForm(const std::string& url) {
  const auto address = parseAddress(url);
  return address ? address->url : url;
}

/// None of one that another tool has stored as no number.
std::chrono::seconds intervalOf(const SiteDraft& site) {
  const std::string& text = site.tInterval;
  int minutes = 0;
  std::from_chars(text.data(), text.data() + text.size(), minutes);
  return std::chrono::minutes(minutes);
}

/// Whether alerts can be mailed to it, be it by a stricter rule no address.
bool mayBeMailAddress(std::string_view email) {
  const std::size_t at = email.find('@');
  return at != std::string_view::npos && at > 0 && at + 1 < email.size() && at == email.rfind('@') &&
         std::ranges::all_of(email, [](char c) {
           return static_cast<unsigned char>(c) > ' ' && c != '\x7f' &&
                  std::string_view("<>()[]\\,;:\"").find(c) == std::string_view::npos;
         });
}

}  // namespace

class ImportPlanner::Plan {
 public:
  Plan(m& data, const ImportOptions& options, ListFaults& faults)
      : data_(data), options_(options), faults_(faults), reader_(data) {}

  /// Takes in some of what is stored; false when that is all.
  bool readStored() {
    std::vector<SiteFacts> read = reader_.next();
    for (SiteFacts& facts : read) {
      if (options_.byAddress) {
        ids_.emplace(fetchedForm(facts.site.url), idOf(facts));
      }
      stored_.emplace(idOf(facts), listedForm(std::move(facts.site)));
    }
    return !read.empty();
  }

  void add(ListedSite site) {
    if (options_.asNew) {
      if (site.idSite == kAllSites) {
        return;  // what holds for all sites is no site, and here it holds for those that were there before
      }
      site.idSite.reset();
    } else if (options_.byAddress && !site.idSite && !findByAddress(site)) {
      return;
    }
    if (site.idSite && !named_.emplace(*site.idSite, site.line).second) {
      faults_.add(site.line, "idSite " + std::to_string(*site.idSite) + " stands on line " +
                                 std::to_string(named_.at(*site.idSite)) +
                                 " already: give each site an id of its own, or none to add it as a new one");
      if (site.idSite != kAllSites) {
        check(site);
      }
      return;
    }
    if (site.idSite == kAllSites) {
      planAllSites(std::move(site));
      return;
    }
    const auto stored = site.idSite ? stored_.find(*site.idSite) : stored_.end();
    if (stored == stored_.end()) {
      planNew(std::move(site));
    } else {
      planChange(std::move(site), stored->second);
    }
  }

  ImportPlan finish() && {
    if (options_.replace) {
      planDeletions();
    }
    numberNewSites();
    noteDoubts();
    return std::move(plan_);
  }

 private:
  /// False when the file has had that address before.
  bool findByAddress(ListedSite& site) {
    const std::string address = fetchedForm(site.site.url);
    const auto [first, fresh] = addresses_.emplace(address, site.line);
    if (!fresh) {
      plan_.repeated.push_back({site.line, first->second, site.site.url});
      return false;
    }
    if (const auto stored = ids_.find(address); stored != ids_.end()) {
      site.idSite = stored->second;
      site.site.url = stored_.at(stored->second).url;  // the same page, be it written otherwise
    }
    return true;
  }

  void planAllSites(ListedSite all) {
    if (all.given.has(list_name::options) && all.options != knownOptions(data_, kAllSites)) {
      plan_.optionsOfAll = std::move(all.options);
    }
    for (ListedChannel& listed : all.channels) {
      const auto stored = data_.channelNamed(listed.channel.name);
      listed.channel.id = stored ? stored->id : 0;
      if (listed.secret || stored != listed.channel) {
        plan_.channels.push_back(std::move(listed));
      }
    }
  }

  void planNew(ListedSite site) {
    if (!site.given.has(list_name::method) && !site.postVars.empty()) {
      site.site.method = "post";
    }
    site.history = missingIn({}, site.history, intervalOf(site.site));
    check(site);
    ImportStep step{Action::add, site.idSite.value_or(0), {}, site.given};
    step.listed = std::move(site);
    plan_.steps.push_back(std::move(step));
  }

  void planChange(ListedSite site, const SiteDraft& stored) {
    ImportStep step{Action::change, *site.idSite, {}, {}};
    Merge merge(site.given, step.fields);
    for (const SiteField& field : data_.fields().site) {
      FieldValue value = valueOf(field, site.site);
      merge.take(field.name, value, valueOf(field, stored));
      setValue(field, site.site, value);
    }
    merge.take(list_name::postVars, site.postVars, readPostVars(data_, step.idSite));
    if (site.given.has(list_name::baseline)) {
      merge.take(list_name::baseline, site.baseline, data_.getContentCompare(step.idSite));
    }
    if (site.given.has(list_name::options)) {
      merge.take(list_name::options, site.options, knownOptions(data_, step.idSite));
    }
    if (site.given.has(list_name::rules)) {
      merge.take(list_name::rules, site.rules, data_.rulesOf(step.idSite));
    }
    if (site.given.has(list_name::tags)) {
      merge.take(list_name::tags, site.tags, data_.tagsOf(step.idSite));
    }
    if (site.given.has(list_name::kept)) {
      merge.take(list_name::kept, site.kept, data_.listedBaselines(step.idSite));
    }
    if (site.given.has(list_name::history)) {
      site.history = missingIn(readHistory(data_.database(), step.idSite), site.history, intervalOf(site.site));
      if (!site.history.none()) {
        step.fields.set(list_name::history);
      }
    }
    check(site);
    if (step.fields.none()) {
      ++plan_.unchanged;
      return;
    }
    step.listed = std::move(site);
    plan_.steps.push_back(std::move(step));
  }

  void check(const ListedSite& site) {
    ListValues values(site.line, faults_);
    for (const auto& [name, value] : site.options) {
      if (!data_.optionField(name).ofSite) {
        values.fault("the option " + name + " holds for all sites, and none has a value of its own: set it for all");
      }
    }
    if (site.site.url.empty() && !site.idSite) {
      values.fault("the url is empty: give the site's address");
    }
    checkTexts(site.site, values);
  }

  void planDeletions() {
    std::vector<std::int16_t> gone;
    for (const auto& [id, site] : stored_) {
      if (!named_.contains(id)) {
        gone.push_back(id);
      }
    }
    std::ranges::sort(gone);
    for (const std::int16_t id : gone) {
      ImportStep step{Action::remove, id, {}, {}};
      step.listed.site.url = std::move(stored_.at(id).url);
      plan_.steps.push_back(std::move(step));
      stored_.erase(id);
    }
  }

  // As they would be numbered one by one: behind the highest id that is there then.
  void numberNewSites() {
    std::int64_t highest = 0;
    for (const auto& [id, site] : stored_) {
      highest = std::max<std::int64_t>(highest, id);
    }
    for (const auto& [id, line] : named_) {
      highest = std::max<std::int64_t>(highest, id);
    }
    for (ImportStep& step : plan_.steps) {
      if (step.action != Action::add || step.listed.idSite) {
        continue;
      }
      if (++highest > kHighestId) {
        faults_.add(step.listed.line, "no id is left for a new site, since ids end at " + std::to_string(kHighestId) +
                                          ": give it one that is free, or delete the site of the highest id");
        continue;
      }
      step.idSite = static_cast<std::int16_t>(highest);
    }
  }

  void noteDoubts() {
    for (const ImportStep& step : plan_.steps) {
      const std::string& email = step.listed.site.email;
      if (step.action != Action::remove && step.fields.has("email") && !email.empty() && !m::isEmail(email)) {
        plan_.doubts.add(step.listed.line, "site " + std::to_string(step.idSite) + ": the email " +
                                               quotedForMessage(email) +
                                               " is imported, but is none that add takes: " + kMailAddressRule);
      }
    }
  }

  m& data_;
  const ImportOptions& options_;
  ListFaults& faults_;
  SiteFactsReader reader_;
  std::unordered_map<std::int16_t, SiteDraft> stored_;
  /// The ids of the file, and their lines.
  std::unordered_map<std::int16_t, std::size_t> named_;
  /// By address: the first site of the list, and the line of the file.
  std::unordered_map<std::string, std::int16_t> ids_;
  std::unordered_map<std::string, std::size_t> addresses_;
  ImportPlan plan_;
};

namespace {

std::string brokenLine(const std::string& name, const std::string& text) {
  return name + " " + quotedForMessage(text) + " holds a line end or a NUL byte: give it without";
}

void storeListed(m& data, const ImportStep& step) {
  storeSite(data, step.idSite, step.listed.site, step.listed.postVars);
  if (step.fields.has(list_name::options)) {
    data.storeOptions(step.idSite, step.listed.options);
  }
  if (step.fields.has(list_name::rules)) {
    data.storeRules(step.idSite, step.listed.rules);
  }
  if (step.fields.has(list_name::tags)) {
    data.storeTags(step.idSite, step.listed.tags);
  }
  if (step.fields.has(list_name::kept)) {
    data.storeBaselines(step.idSite, step.listed.kept);
  }
  storeHistory(data.database(), step.idSite, step.listed.history);
  if (!step.fields.has(list_name::baseline)) {
    return;
  }
  if (step.listed.baseline.empty()) {
    data.clearContentCompare(step.idSite);
  } else {
    data.updateContentCompare(step.idSite, step.listed.baseline);
  }
}

void store(m& data, const ImportStep& step) {
  if (step.action == Action::add) {
    data.addSite(step.idSite);
  }
  storeListed(data, step);
  if (step.action == Action::add && step.listed.state) {
    adoptState(data.database(), step.idSite, *step.listed.state);
  }
}

}  // namespace

HistoryTaken ImportPlan::history() const {
  HistoryTaken taken;
  for (const ImportStep& step : steps) {
    const KeptHistory& history = step.listed.history;
    taken.sites += history.none() ? 0 : 1;
    taken.hours += history.hours.size();
    taken.outages += history.outages.size();
  }
  return taken;
}

std::size_t ImportPlan::count(Action action) const {
  return static_cast<std::size_t>(std::ranges::count(steps, action, &ImportStep::action));
}

ImportPlanner::ImportPlanner(m& data, std::vector<ListedSite>& sites, Sites afterwards, const ImportOptions& options,
                             ListFaults& faults)
    : plan_(std::make_unique<Plan>(data, options, faults)), sites_(sites), afterwards_(afterwards) {}

ImportPlanner::~ImportPlanner() = default;
ImportPlanner::ImportPlanner(ImportPlanner&&) noexcept = default;

bool ImportPlanner::next() {
  if (plan_->readStored()) {
    return true;
  }
  if (next_ == sites_.size()) {
    return false;
  }
  ListedSite& site = sites_[next_++];
  plan_->add(afterwards_ == Sites::taken ? std::move(site) : site);
  return true;
}

double ImportPlanner::done() const {
  return sites_.empty() ? 1 : static_cast<double>(next_) / static_cast<double>(sites_.size());
}

ImportPlan ImportPlanner::finish() && { return std::move(*plan_).finish(); }

ImportPlan planImport(m& data, std::vector<ListedSite> sites, const ImportOptions& options, ListFaults& faults) {
  ImportPlanner planner(data, sites, ImportPlanner::Sites::taken, options, faults);
  while (planner.next()) {
  }
  return std::move(planner).finish();
}

void ImportWriter::storeForAll() {
  if (plan_.optionsOfAll) {
    data_.storeOptions(kAllSites, *plan_.optionsOfAll);
  }
  for (const ListedChannel& listed : plan_.channels) {
    data_.storeChannel(listed.channel);
  }
}

// What is deleted goes first, since another site may come under its id.
bool ImportWriter::next() {
  const std::size_t count = plan_.steps.size();
  if (!std::exchange(begun_, true)) {
    storeForAll();
  }
  while (next_ < 2 * count) {
    const bool removing = next_ < count;
    const ImportStep& step = plan_.steps[removing ? next_ : next_ - count];
    ++next_;
    if (removing != (step.action == Action::remove)) {
      continue;
    }
    removing ? data_.deleteSite(step.idSite) : store(data_, step);
    return true;
  }
  return false;
}

double ImportWriter::done() const {
  return plan_.steps.empty() ? 1 : static_cast<double>(next_) / static_cast<double>(2 * plan_.steps.size());
}

std::vector<ListedChannel> channelsWithSecret(m& data, const ImportPlan& plan) {
  std::vector<ListedChannel> all;
  for (ListedChannel listed : plan.channels) {
    const auto stored = data.channelNamed(listed.channel.name);
    if (stored && listed.secret) {
      listed.channel = *stored;
      all.push_back(std::move(listed));
    }
  }
  return all;
}

void carryOut(m& data, const ImportPlan& plan) {
  ImportWriter writer(data, plan);
  while (writer.next()) {
  }
}

void checkTexts(const SiteDraft& site, ListValues& values) {
  // A site may be without an address as long as nobody has entered one.
  const auto address = parseAddress(site.url);
  if (hasLineEnd(site.url)) {
    values.fault(brokenLine("url", site.url));
  } else if (!address && !site.url.empty()) {
    values.fault("url " + quotedForMessage(site.url) + " is no address: give one like https://example.org/page");
  } else if (address && !isFetchedScheme(address->scheme)) {
    values.fault("url " + quotedForMessage(site.url) +
                 " cannot be fetched: give an address of http, https, ftp or ftps");
  }
  if (hasLineEnd(site.sUserName)) {
    values.fault(brokenLine("sUserName", site.sUserName));
  }
  if (hasLineEnd(site.email)) {
    values.fault(brokenLine("email", site.email));
  } else if (site.alertEmail && !m::isEmail(site.email) && !mayBeMailAddress(site.email)) {
    values.fault("email " + quotedForMessage(site.email) +
                 " is no mail address: give one for the alerts, or set alertEmail to False");
  }
}

const char* wordOf(Action action) {
  return action == Action::add ? "add" : action == Action::change ? "change" : "delete";
}

}  // namespace tarnwick
