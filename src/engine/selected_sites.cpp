// SPDX-License-Identifier: MIT
#include "engine/selected_sites.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "base/errors.h"
#include "base/sql_value.h"
#include "base/text.h"
#include "engine/due_sites.h"
#include "engine/page_fetch.h"
#include "engine/result_recording.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

std::string methodAsSent(const std::string& stored) { return stored.empty() ? "GET" : upperCase(stored); }

}  // namespace

SelectedSites::SelectedSites(const RunController::Needs& needs, TextTable sites)
    : needs_(&needs), sites_(std::move(sites)) {
  urls_.reserve(sites_.lastRow());
  for (std::size_t row = 1; row <= sites_.lastRow(); ++row) {
    urls_.push_back(cell(site_column::url, row));
  }
}

std::int16_t SelectedSites::idSite(std::size_t row) const { return siteIdFromText(cell(site_column::idSite, row)); }

std::exception_ptr SelectedSites::unusableId(std::size_t row) const {
  try {
    idSite(row);
    return nullptr;
  } catch (const OverflowError&) {
    return std::current_exception();
  }
}

std::chrono::minutes SelectedSites::interval(std::size_t row) const {
  const std::string& text = cell(site_column::tInterval, row);
  std::int64_t minutes = 0;
  std::from_chars(text.data(), text.data() + text.size(), minutes);
  return std::chrono::minutes(std::max<std::int64_t>(1, minutes));
}

Request SelectedSites::requestFor(std::size_t row) {
  const std::int16_t id = idSite(row);
  Request request = needs_->pages.requestFor(id, cell(site_column::method, row));
  request.url = url(row);
  request.userName = needs_->pages.credential(id, "sUserName", cell(site_column::sUserName, row));
  request.password = needs_->pages.credential(id, "sPassWord", cell(site_column::sPassWord, row));
  sent_[row] = {request.userName, request.password,
                request.headers.empty() ? std::nullopt : std::optional(request.body)};
  return request;
}

bool SelectedSites::hasAddressAsSelected(std::size_t row) const {
  const std::string stored = needs_->results.getUrl(idSite(row));
  return trimmed(stored) == trimmed(url(row)) || (stored.empty() && url(row) == kNullText);
}

// An editor may store the same request in other letters than it found.
bool SelectedSites::wouldSendTheSame(std::size_t row, const TextTable& stored) const {
  const auto sent = sent_.find(row);
  if (sent == sent_.end()) {
    return true;  // a row without an address, for which nothing was sent
  }
  const std::int16_t id = idSite(row);
  const auto& [userName, password, form] = sent->second;
  return methodAsSent(stored.at(site_column::method, 1)) == methodAsSent(cell(site_column::method, row)) &&
         needs_->pages.credential(id, "sUserName", stored.at(site_column::sUserName, 1)) == userName &&
         needs_->pages.credential(id, "sPassWord", stored.at(site_column::sPassWord, 1)) == password &&
         (!form || needs_->pages.postVarsAsStored(id) == *form);
}

// While it was fetched a site may have been deleted, its id given to a new one, its request been changed or the site
// been switched off: the page is not that site's, and must not become its baseline or raise its alert.
SelectedSites::Standing SelectedSites::standingOf(std::size_t row) const {
  const bool sameAddress = hasAddressAsSelected(row);
  const TextTable stored = needs_->dueSites.asStored(idSite(row));
  if (stored.lastRow() == 0) {
    return Standing::gone;
  }
  const auto isAsSelected = [&](std::size_t column) { return stored.at(column, 1) == cell(column, row); };
  if (sameAddress && isAsSelected(site_column::active) && wouldSendTheSame(row, stored)) {
    return Standing::asSelected;
  }
  if (!SqlValue(stored.at(site_column::active, 1)).toBool()) {
    return Standing::switchedOff;
  }
  // A new site under the id has not been checked when the one that was selected had.
  return isAsSelected(site_column::lastChecked) ? Standing::changed : Standing::gone;
}

}  // namespace tarnwick
