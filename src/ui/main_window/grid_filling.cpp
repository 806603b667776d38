// SPDX-License-Identifier: MIT
#include "ui/main_window/grid_filling.h"

#include <cstdlib>
#include <limits>
#include <utility>

#include "engine/sites_not_fetched.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

/// What is there at once.
constexpr std::size_t kAtOnce = 4096;
/// The sites that are read between two events.
constexpr std::size_t kSlice = 2048;
constexpr int kRenewed = 64;

/// The last id where all of them rise, so that the rest can be asked for by it.
std::optional<std::int64_t> lastOfRising(const TextTable& sites, std::int64_t behind) {
  for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
    const std::int64_t id = std::strtoll(sites.at(site_column::idSite, row).c_str(), nullptr, 10);
    if (id <= behind) {
      return std::nullopt;
    }
    behind = id;
  }
  return behind;
}

}  // namespace

GridFilling::GridFilling(Program& program, SiteGridView& grid, QObject* parent)
    : QObject(parent), program_(program), grid_(grid) {
  connect(&soon_, &QTimer::timeout, this, [this] { program_.faults().run([this] { goOn(); }); });
}

void GridFilling::begin() {
  soon_.stop();
  changed_.clear();
  read_ = {};
  last_ = std::numeric_limits<std::int64_t>::min();
  const TextTable sites = readFirstSites(program_.data().database(), kAtOnce);
  if (sites.lastRow() < kAtOnce) {
    last_.reset();
  }
  if (!take(sites, kAtOnce)) {
    show();
    return;
  }
  if (grid_.sites().rowCount() == 0) {
    grid_.setSites(SiteRows(read_));  // better than nothing
  }
  grid_.awaitSites();
  soon_.start(0);
}

void GridFilling::renew(std::int16_t idSite) {
  if (goesOn()) {
    changed_.insert(idSite);
  }
}

void GridFilling::goOn() try {
  if (last_) {
    readMore();
  } else if (!changed_.empty()) {
    renewSome();
  } else {
    soon_.stop();
    show();
    Q_EMIT ended();
  }
} catch (...) {
  soon_.stop();
  throw;
}

void GridFilling::readMore() { take(readSitesBehind(program_.data().database(), last_, kSlice), kSlice); }

void GridFilling::renewSome() {
  for (int count = 0; count < kRenewed && !changed_.empty(); ++count) {
    read_.update(program_.data().getArraySites(*changed_.begin()), grid_.sites().columns());
    changed_.erase(changed_.begin());
  }
}

bool GridFilling::take(const TextTable& sites, std::size_t most) {
  std::set<std::int64_t> notFetched;
  if (!last_) {
    notFetched = program_.data().sitesNotFetched();
  } else if (const auto newLast = lastOfRising(sites, *last_)) {
    notFetched = sitesNotFetchedBetween(program_.data().database(), *last_, *newLast);
    last_ = sites.lastRow() == most ? newLast : std::nullopt;
  } else {
    // Another tool has made the file, and ids are there twice: all at once.
    read_ = {};
    last_.reset();
    return take(program_.data().getArraySites(0), most);
  }
  read_.add(sites, notFetched, grid_.sites().columns());
  return last_.has_value();
}

void GridFilling::show() { grid_.setSites(std::exchange(read_, {})); }

}  // namespace tarnwick
