// SPDX-License-Identifier: MIT
#include "program/month_telling.h"

#include <exception>
#include <utility>

#include "base/errors.h"
#include "report/month_page.h"
#include "report/month_tables.h"
#include "store/options_for_others.h"

namespace tarnwick {
namespace {

constexpr std::chrono::minutes kBetweenLooks{1};
/// Of each table in a message, whose reader has the page for the others.
constexpr std::size_t kMostInMessage = 10;

}  // namespace

bool MonthTelling::isDue() const { return !looked_ || clock_.steadyNow() - *looked_ >= kBetweenLooks; }

void MonthTelling::tick(const OptionsInForce& options) {
  looked_ = clock_.steadyNow();
  if (options.valueOf(kAllSites, option_name::monthReport) != option_value::on) {
    return;
  }
  if (!reports_.hasBegun()) {
    reports_.begin();  // set by another tool
  }
  for (const Moment month : reports_.owed(clock_.now())) {
    if (!unknown_.contains(month)) {
      tell(month);
    }
  }
}

// The file comes first: after a kill between the two it is written once more, and the message leaves once.
void MonthTelling::tell(Moment month) {
  const MonthReport report = monthReport(history_, month, clock_.now());
  if (report.all.sum.known().count() == 0 && report.outages.empty()) {
    unknown_.insert(month);
    return;
  }
  const std::string page = monthPage(history_, report);
  std::exception_ptr fault;
  try {
    writeFile(month, page);
  } catch (const FileError&) {
    fault = std::current_exception();
  }
  {
    Transaction whole(history_.database());
    if (reports_.isMade(month)) {
      return;  // by another program
    }
    if (delivery_.tellsOf(std::nullopt)) {
      const LocalTime now = clock_.localNow();
      Alert alert{.made = now, .pass = now, .event = kMonthReport};
      alert.cause = monthSentence(report);
      alert.difference = monthLines(report, kMostInMessage);
      if (delivery_.wantsPage(std::nullopt)) {
        alert.page = page;
      }
      delivery_.add(std::move(alert), std::nullopt);
    }
    reports_.setMade(month);
    whole.commit();
  }
  delivery_.deliver();
  if (fault) {
    std::rethrow_exception(fault);
  }
}

void MonthTelling::writeFile(Moment month, const std::string& page) {
  const std::string folder = history_.database().programFolder() + "/reports";
  const std::string path = folder + "/month-" + monthText(month) + ".html";
  try {
    if (files_.kindOf(folder) != FileKind::folder) {
      files_.makeFolder(folder);
    }
    files_.replace(path, [&](const ByteSink& sink) { sink(page); });
  } catch (const FileError& error) {
    throw FileError(path, error.cause() + " To write the report of that month elsewhere: tarnwickctl " +
                              "month-report " + monthText(month) + " --html FILE");
  }
}

}  // namespace tarnwick
