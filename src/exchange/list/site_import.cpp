// SPDX-License-Identifier: MIT
#include "exchange/list/site_import.h"

#include <algorithm>
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

/// Whether alerts can be mailed to it, be it by a stricter rule no address.
bool mayBeMailAddress(std::string_view email) {
  const std::size_t at = email.find('@');
  return at != std::string_view::npos && at > 0 && at + 1 < email.size() && at == email.rfind('@') &&
         std::ranges::all_of(email, [](char c) {
           return static_cast<unsigned char>(c) > ' ' && c != '\x7f' &&
                  std::string_view("<>()[]\\,;:\"").find(c) == std::string_view::npos;
         });
}

class Planner {
 public:
  Planner(m& data, const ImportOptions& options, ListFaults& faults) : data_(data), options_(options), faults_(faults) {
    for (SiteFacts& facts : readSiteFacts(data)) {
      if (options_.byAddress) {
        ids_.emplace(fetchedForm(facts.site.url), idOf(facts));
      }
      stored_.emplace(idOf(facts), listedForm(std::move(facts.site)));
    }
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
      planOptionsOfAll(std::move(site));
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

  void planOptionsOfAll(ListedSite all) {
    if (all.options != knownOptions(data_, kAllSites)) {
      plan_.optionsOfAll = std::move(all.options);
    }
  }

  void planNew(ListedSite site) {
    if (!site.given.has(list_name::method) && !site.postVars.empty()) {
      site.site.method = "post";
    }
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
  std::unordered_map<std::int16_t, SiteDraft> stored_;
  /// The ids of the file, and their lines.
  std::unordered_map<std::int16_t, std::size_t> named_;
  /// By address: the first site of the list, and the line of the file.
  std::unordered_map<std::string, std::int16_t> ids_;
  std::unordered_map<std::string, std::size_t> addresses_;
  ImportPlan plan_;
};

std::string brokenLine(const std::string& name, const std::string& text) {
  return name + " " + quotedForMessage(text) + " holds a line end or a NUL byte: give it without";
}

void storeListed(m& data, const ImportStep& step) {
  storeSite(data, step.idSite, step.listed.site, step.listed.postVars);
  if (step.fields.has(list_name::options)) {
    data.storeOptions(step.idSite, step.listed.options);
  }
  if (!step.fields.has(list_name::baseline)) {
    return;
  }
  if (step.listed.baseline.empty()) {
    data.clearContentCompare(step.idSite);
  } else {
    data.updateContentCompare(step.idSite, step.listed.baseline);
  }
}

}  // namespace

std::size_t ImportPlan::count(Action action) const {
  return static_cast<std::size_t>(std::ranges::count(steps, action, &ImportStep::action));
}

ImportPlan planImport(m& data, std::vector<ListedSite> sites, const ImportOptions& options, ListFaults& faults) {
  Planner planner(data, options, faults);
  for (ListedSite& site : sites) {
    planner.add(std::move(site));
  }
  return std::move(planner).finish();
}

void carryOut(m& data, const ImportPlan& plan) {
  if (plan.optionsOfAll) {
    data.storeOptions(kAllSites, *plan.optionsOfAll);
  }
  for (const ImportStep& step : plan.steps) {
    if (step.action == Action::remove) {
      data.deleteSite(step.idSite);
    }
  }
  for (const ImportStep& step : plan.steps) {
    if (step.action == Action::add) {
      data.addSite(step.idSite);
    }
    if (step.action != Action::remove) {
      storeListed(data, step);
    }
    if (step.action == Action::add && step.listed.state) {
      adoptState(data.database(), step.idSite, *step.listed.state);
    }
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
