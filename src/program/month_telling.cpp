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

MonthTelling::MonthTelling(SiteHistory& history, Delivery& delivery, FileSystem& files, const Clock& clock,
                           TimerMaker& timers, PartedWork::Guard guard)
    : history_(history),
      delivery_(delivery),
      files_(files),
      clock_(clock),
      reports_(history.database()),
      work_(timers, clock, std::move(guard)) {}

bool MonthTelling::isDue() const { return !looked_ || clock_.steadyNow() - *looked_ >= kBetweenLooks; }

void MonthTelling::tick(const OptionsInForce& options) {
  looked_ = clock_.steadyNow();
  if (work_.isOn() || options.valueOf(kAllSites, option_name::monthReport) != option_value::on) {
    return;
  }
  if (!reports_.hasBegun()) {
    reports_.begin();  // set by another tool
  }
  std::vector<Moment> owed = reports_.owed(clock_.now());
  std::erase_if(owed, [&](Moment month) { return unknown_.contains(month); });
  if (!owed.empty()) {
    work_.begin(tellAll(std::move(owed)));
  }
}

TextInParts MonthTelling::tellAll(std::vector<Moment> months) {
  for (const Moment month : months) {
    TextInParts telling = tell(month);
    while (telling.goOn()) {
      co_await letOthersGoOn;
    }
  }
  co_return {};
}

// The file comes first: after a kill between the two it is written once more, and the message leaves once.
TextInParts MonthTelling::tell(Moment month) {
  MonthReport report;
  TextInParts figures = readMonthReport(history_, report, month, clock_.now());
  while (figures.goOn()) {
    co_await letOthersGoOn;
  }
  if (report.all.sum.known().count() == 0 && report.outages.empty()) {
    unknown_.insert(month);
    co_return {};
  }
  TextInParts parts = monthPage(history_, report);
  while (parts.goOn()) {
    co_await letOthersGoOn;
  }
  const std::string page = std::move(parts).whole();
  std::exception_ptr fault;
  try {
    writeFile(month, page);
  } catch (const FileError&) {
    fault = std::current_exception();
  }
  {
    Transaction whole(history_.database());
    if (reports_.isMade(month)) {
      co_return {};  // by another program
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
  co_return {};
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
