// SPDX-License-Identifier: MIT
#include "report/publication.h"

#include <exception>
#include <utility>

#include "base/errors.h"
#include "report/metrics_text.h"
#include "report/status_page.h"
#include "store/options_for_others.h"

namespace tarnwick {
namespace {

constexpr int kShareOfTheTime = 100;

std::string placeOf(SiteHistory& history, const std::string& path) {
  return pathOf(path).is_absolute() ? path : history.database().programFolder() + "/" + path;
}

void replaceBy(FileSystem& files, const std::string& path, const std::string& text) {
  files.replace(path, [&](const ByteSink& sink) { sink(text); });
}

/// The path of the page in that folder, which is made when it is missing.
std::string pageIn(SiteHistory& history, FileSystem& files, const std::string& folder) {
  const std::string place = placeOf(history, folder);
  if (files.kindOf(place) != FileKind::folder) {
    files.makeFolder(place);
  }
  return place + "/index.html";
}

}  // namespace

Publication::Publication(SiteHistory& history, FileSystem& files, const Clock& clock, TimerMaker& timers,
                         PartedWork::Guard guard)
    : history_(history), files_(files), clock_(clock), work_(timers, clock, std::move(guard)) {}

bool Publication::write(const OptionsInForce& options) {
  const auto folder = options.valueOf(kAllSites, option_name::statusPage);
  const auto figures = options.valueOf(kAllSites, option_name::metricsFile);
  if (!folder && !figures) {
    return true;
  }
  if (work_.isOn() || (notBefore_ && clock_.steadyNow() < *notBefore_)) {
    return false;
  }
  work_.begin(all(folder, figures));
  return true;
}

TextInParts Publication::all(std::optional<std::string> folder, std::optional<std::string> figures) {
  std::exception_ptr fault;
  if (figures) {
    TextInParts text = metricsText(history_);
    while (text.goOn()) {
      co_await letOthersGoOn;
    }
    try {
      replaceBy(files_, placeOf(history_, *figures), std::move(text).whole());
    } catch (const FileError&) {
      fault = std::current_exception();
    }
  }
  if (folder) {
    const std::string path = pageIn(history_, files_, *folder);
    TextInParts page = statusPage(history_, clock_.now());
    while (page.goOn()) {
      co_await letOthersGoOn;
    }
    replaceBy(files_, path, std::move(page).whole());
  }
  notBefore_ = clock_.steadyNow() + work_.spent() * kShareOfTheTime;
  if (fault) {
    std::rethrow_exception(fault);
  }
  co_return {};
}

std::string writeStatusPage(SiteHistory& history, FileSystem& files, const Clock& clock, const std::string& folder) {
  std::string path = pageIn(history, files, folder);
  replaceBy(files, path, statusPage(history, clock.now()).whole());
  return path;
}

}  // namespace tarnwick
