// SPDX-License-Identifier: MIT
#include "report/publication.h"

#include <exception>

#include "base/errors.h"
#include "report/metrics_text.h"
#include "report/status_page.h"
#include "store/options_for_others.h"

namespace tarnwick {
namespace {

constexpr int kShareOfTheTime = 100;

}  // namespace

std::string Publication::placeOf(const std::string& path) const {
  return pathOf(path).is_absolute() ? path : history_.database().programFolder() + "/" + path;
}

std::string Publication::writeStatusPage(const std::string& folder) {
  const std::string place = placeOf(folder);
  if (files_.kindOf(place) != FileKind::folder) {
    files_.makeFolder(place);
  }
  std::string path = place + "/index.html";
  const std::string page = statusPage(history_, clock_.now());
  files_.replace(path, [&](const ByteSink& sink) { sink(page); });
  return path;
}

bool Publication::write(const OptionsInForce& options) {
  const auto folder = options.valueOf(kAllSites, option_name::statusPage);
  const auto figures = options.valueOf(kAllSites, option_name::metricsFile);
  if (!folder && !figures) {
    return true;
  }
  const std::chrono::milliseconds begin = clock_.steadyNow();
  if (notBefore_ && begin < *notBefore_) {
    return false;
  }
  std::exception_ptr fault;
  try {
    if (figures) {
      const std::string text = metricsText(history_);
      files_.replace(placeOf(*figures), [&](const ByteSink& sink) { sink(text); });
    }
  } catch (const FileError&) {
    fault = std::current_exception();
  }
  if (folder) {
    writeStatusPage(*folder);
  }
  const std::chrono::milliseconds end = clock_.steadyNow();
  notBefore_ = end + (end - begin) * kShareOfTheTime;
  if (fault) {
    std::rethrow_exception(fault);
  }
  return true;
}

}  // namespace tarnwick
