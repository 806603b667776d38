// SPDX-License-Identifier: MIT
#include "ui/details/settling_words.h"

#include <algorithm>
#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include "difference/page_form.h"
#include "ui/controls/delivery_words.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

using State = ToSettle::State;

struct Words {
  Q_DECLARE_TR_FUNCTIONS(tarnwick::SettlingWords)
};

QString withReason(const QString& sentence, const QString& reason) {
  return reason.isEmpty() ? sentence : sentence + QStringLiteral(": ") + reason;
}

QString lineWords(const PageChange& change) {
  const bool isGone = change.linesAfter == 0;
  const std::size_t first = (isGone ? change.firstBefore : change.firstAfter) + 1;
  const std::size_t last = first + (isGone ? change.linesBefore : change.linesAfter) - 1;
  if (first == last) {
    return (isGone                    ? Words::tr("line %1 is gone")
            : change.linesBefore == 0 ? Words::tr("line %1 is new")
                                      : Words::tr("line %1 differs"))
        .arg(first);
  }
  return (isGone                    ? Words::tr("lines %1 to %2 are gone")
          : change.linesBefore == 0 ? Words::tr("lines %1 to %2 are new")
                                    : Words::tr("lines %1 to %2 differ"))
      .arg(first)
      .arg(last);
}

}  // namespace

QString changesWords(const ComparedPages& pages, const PageDifference& difference) {
  constexpr std::size_t kMost = 3;
  const std::size_t count = difference.changes.size();
  if (difference.shownAsOne) {
    return {};
  }
  if (pageFormOf(pages.before) == PageForm::binary || pageFormOf(pages.after) == PageForm::binary) {
    return count == 1 ? Words::tr("bytes differ in 1 place") : Words::tr("bytes differ in %1 places").arg(count);
  }
  QStringList words;
  for (std::size_t change = 0; change < std::min(count, kMost); ++change) {
    words << lineWords(difference.changes[change]);
  }
  if (count > kMost) {
    words << Words::tr("%1 more changes").arg(count - kMost);
  }
  return words.join(QStringLiteral(", "));
}

QString standingWords(std::int16_t idSite, const ToSettle& found, const QString& reason) {
  switch (found.state) {
    case State::noSuchSite:
      return Words::tr("There is no site %1 any more.").arg(idSite);
    case State::never:
      return Words::tr("No page of site %1 is here yet: the next check brings it.").arg(idSite);
    case State::same:
      return Words::tr("Site %1 is as it should be.").arg(idSite);
    case State::notKept:
      return Words::tr("Site %1 changed, and its page was not kept for want of room.").arg(idSite);
    case State::failedFetch:
      return withReason(Words::tr("Site %1 does not answer").arg(idSite), reason);
    case State::emptyPage:
      return withReason((found.isAcknowledged ? Words::tr("Site %1 answered with an empty page, which is known")
                                              : Words::tr("Site %1 answered with an empty page"))
                            .arg(idSite),
                        reason);
    case State::differs:
      break;
  }
  return withReason(
      (found.isAcknowledged ? Words::tr("Site %1 changed, which is known") : Words::tr("Site %1 changed")).arg(idSite),
      reason);
}

QString nothingToShow(std::int16_t idSite, const ToSettle& found) {
  switch (found.state) {
    case State::differs:
    case State::emptyPage:
    case State::same:
      return {};
    case State::failedFetch:
      return displayText(found.page);
    default:
      return standingWords(idSite, found, {});
  }
}

QString doubtWords(const ToSettle& found) {
  QStringList lines;
  if (found.state == State::failedFetch) {
    lines << Words::tr("The latest check brought no page, but the text of an error.");
  }
  if (!found.errorWords.empty()) {
    lines << Words::tr("This looks like an error page (%1).").arg(displayText(found.errorWords));
  }
  if (found.isShort) {
    lines << Words::tr("It has less than half the size of the baseline.");
  }
  if (found.placesLost > 0) {
    lines << (found.placesLost == 1 ? Words::tr("1 place that may vary is not found in it.")
                                    : Words::tr("%1 places that may vary are not found in it.").arg(found.placesLost));
  }
  return lines.join(QLatin1Char('\n'));
}

QString baselineHead(std::size_t bytes) { return Words::tr("− Baseline, %1").arg(bytesWords(bytes)); }

QString latestHead(std::size_t bytes, std::optional<LocalTime> checked, LocalTime now) {
  return checked ? Words::tr("+ Latest check %1, %2").arg(stampWords(*checked, now), bytesWords(bytes))
                 : Words::tr("+ Latest check, %1").arg(bytesWords(bytes));
}

QString keptHead(const KeptBaseline& kept) {
  const QString taken = displayText(kept.taken);
  return (kept.origin == BaselineOrigin::also ? Words::tr("− Good as well since %1, %2")
                                              : Words::tr("− Baseline until %1, %2"))
      .arg(taken, bytesWords(kept.size));
}

QString loggedHead(const LogRow& row) {
  return Words::tr("+ Check of %1, %2")
      .arg(displayText(row.dateStamp.value_or("")), bytesWords(row.content.value_or("").size()));
}

QString loggedWords(const LogRow& row) {
  const QString when = displayText(row.dateStamp.value_or(""));
  if (row.errCode.value_or(0) != 0) {
    return Words::tr("The check of %1 brought no page: %2").arg(when, displayMessage(row.errDescription.value_or("")));
  }
  return row.content.value_or("").empty() ? Words::tr("The page of %1 was empty, or is not kept any more.").arg(when)
                                          : QString();
}

QString bytesWords(std::size_t bytes) {
  return bytes == 1 ? Words::tr("1 byte")
                    : Words::tr("%1 bytes").arg(QLocale().toString(static_cast<qulonglong>(bytes)));
}

bool canBeSettled(const ToSettle& found) { return canBeAccepted(found) || found.state == State::emptyPage; }

bool canBeAccepted(const ToSettle& found) { return found.state == State::differs || found.state == State::failedFetch; }

}  // namespace tarnwick
