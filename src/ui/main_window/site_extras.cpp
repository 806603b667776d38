// SPDX-License-Identifier: MIT
#include "ui/main_window/site_extras.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <utility>

#include "store/site_certificates.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr int kOften = 15000;  // milliseconds
constexpr int kAfterFault = 30000;
/// Of the sites that are read at once, by their numbers.
constexpr std::int64_t kSlice = 512;
/// More rows than these are seen by nobody at once.
constexpr std::size_t kMostSeen = 300;
/// So long, in milliseconds, pages are looked through between two events.
constexpr std::chrono::milliseconds kAtOnce{8};

}  // namespace

SiteExtras::SiteExtras(Program& program, SiteGridModel& sites, QObject* parent)
    : QObject(parent), program_(program), sites_(sites) {
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, &SiteExtras::readMore);
  often_.setInterval(kOften);
  connect(&often_, &QTimer::timeout, this, &SiteExtras::lookAtOthers);
  sites_.setExtraCells(*this);
}

void SiteExtras::show(const std::set<std::size_t>& columns) {
  shown_ = columns;
  wanted_ = {};
  for (const std::size_t column : columns) {
    wanted_ = wanted_ | extraColumns()[column].facts;
  }
  if (columns.empty()) {
    often_.stop();
    soon_.stop();
    facts_.clear();
    wrong_.clear();
    changes_.reset();
    return;
  }
  often_.start();
  look();
}

void SiteExtras::look() {
  if (shown_.empty()) {
    return;
  }
  for (auto& [id, wrong] : wrong_) {
    wrong.isStale = true;
  }
  judged_.clear();
  options_.reset();
  const auto [first, last] = sites_.idsOfSites();
  next_ = first;
  last_ = last;
  soon_.start(0);
}

void SiteExtras::update(std::int16_t idSite) {
  if (!shown_.empty()) {
    judged_.insert(idSite);
    if (!soon_.isActive()) {
      soon_.start(0);
    }
  }
}

// What others have changed is read again, and what time makes another text of is shown again.
void SiteExtras::lookAtOthers() {
  try {
    if (!changes_) {
      changes_.emplace(program_.data().database());
    }
    if (changes_->byOthers()) {
      look();
    }
  } catch (const std::exception&) {
    // That the list cannot be read is told elsewhere.
  }
  Q_EMIT changed();
}

void SiteExtras::readMore() {
  try {
    if (next_) {
      readSlice();
    } else if (!judged_.empty()) {
      readJudged();
    } else if (!unknown_.empty()) {
      lookUpWrong();
    }
    if (next_ || !judged_.empty() || !unknown_.empty()) {
      soon_.start(0);
    }
  } catch (const std::exception&) {
    // That the list cannot be read is told elsewhere. What was read stays until it can be read again.
    soon_.start(kAfterFault);
  }
}

void SiteExtras::readSlice() {
  if (!options_ && (wanted_.certificate || shown_.contains(kNextCheckColumn))) {
    options_ = program_.data().optionsInForce();
  }
  if (!wanted_.any()) {
    next_.reset();
    return;
  }
  const std::int64_t end = std::min(*next_ + kSlice - 1, last_);
  read(*next_, end);
  next_ = end < last_ ? std::optional(end + 1) : std::nullopt;
  Q_EMIT changed();
  if (!next_) {
    Q_EMIT sorted();
  }
}

void SiteExtras::read(std::int64_t first, std::int64_t last) {
  auto found = readListedFacts(program_.data().database(), wanted_, first, last);
  for (auto id = first; id <= last; ++id) {
    facts_.erase(static_cast<std::int16_t>(id));
  }
  for (auto& [id, site] : found) {
    if (options_ && !looksAtCertificate(*options_, id)) {
      site.certificate.reset();  // it may have been another one for long
    }
    facts_[static_cast<std::int16_t>(id)] = std::move(site);
  }
}

void SiteExtras::readJudged() {
  constexpr std::size_t kMost = 50;
  for (std::size_t i = 0; i < kMost && !judged_.empty(); ++i) {
    const std::int16_t id = *judged_.begin();
    if (wanted_.any()) {
      read(id, id);
    }
    judged_.erase(judged_.begin());
  }
  Q_EMIT changed();
  Q_EMIT sorted();
}

void SiteExtras::lookUpWrong() {
  const auto begun = program_.services().clock.steadyNow();
  while (!unknown_.empty() && program_.services().clock.steadyNow() - begun < kAtOnce) {
    const std::int16_t id = unknown_.back();
    unknown_.pop_back();
    if (const int row = sites_.rowOfSite(id); row >= 0) {
      wrong_[id] = lookUp(id, sites_.row(row));
    }
  }
  Q_EMIT changed();
}

SiteExtras::Wrong SiteExtras::lookUp(std::int16_t idSite, const SiteRow& row) {
  Wrong wrong{.checked = row.cells[SiteGridModel::timeColumn], .text = {}};
  const SiteReasons::ShortReason reason = program_.data().shortReasonOf(idSite);
  if (!reason.error.empty()) {
    wrong.text = displayMessage(reason.error);
  } else if (reason.line > 0) {
    wrong.text = tr("line %1 differs").arg(reason.line);
  }
  return wrong;
}

std::optional<QString> SiteExtras::wrongOf(int row, Seen seen) const {
  const SiteRow& site = sites_.row(row);
  const bool isWrong = site.shade == SiteRow::Shade::down || (site.shade == SiteRow::Shade::up && !site.fetched);
  const auto idSite = sites_.siteOfRow(row);
  if (!isWrong || !idSite) {
    return std::nullopt;
  }
  const auto known = wrong_.find(*idSite);
  const bool isKnown = known != wrong_.end() && known->second.checked == site.cells[SiteGridModel::timeColumn];
  if (seen == Seen::yes && (!isKnown || known->second.isStale)) {
    lookUpLater(*idSite);
  }
  return isKnown ? known->second.text : std::nullopt;
}

void SiteExtras::lookUpLater(std::int16_t idSite) const {
  if (std::ranges::find(unknown_, idSite) == unknown_.end()) {
    unknown_.push_back(idSite);
    if (unknown_.size() > kMostSeen) {
      unknown_.pop_front();
    }
    if (!soon_.isActive()) {
      soon_.start(0);
    }
  }
}

ExtraCell SiteExtras::cellOf(int row, std::size_t column, Seen seen) const {
  static const ListedFacts kNone;
  const auto idSite = sites_.siteOfRow(row);
  const auto facts = idSite ? facts_.find(*idSite) : facts_.end();
  return {.row = sites_.row(row),
          .facts = facts == facts_.end() ? kNone : facts->second,
          .now = seen == Seen::yes ? program_.services().clock.localNow() : LocalTime(),
          .isTested = sites_.isTested(row),
          .runIsOn = program_.run().running(),
          .newSitesAtOnce = options_ && options_->newSitesAtOnce(),
          .wrong = column == kLastResultColumn ? wrongOf(row, seen) : std::nullopt};
}

QString SiteExtras::textOf(int row, std::size_t column) const {
  return shown_.contains(column) ? extraColumns()[column].text(cellOf(row, column, Seen::yes)) : QString();
}

QString SiteExtras::toolTipOf(int row, std::size_t column) const {
  return shown_.contains(column) ? extraColumns()[column].toolTip(cellOf(row, column, Seen::yes)) : QString();
}

SortKey SiteExtras::keyOf(int row, std::size_t column) const {
  return extraColumns()[column].key(cellOf(row, column, Seen::no));
}

}  // namespace tarnwick
