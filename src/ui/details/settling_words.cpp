// SPDX-License-Identifier: MIT
#include "ui/details/settling_words.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

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

}  // namespace

QString standingWords(std::int16_t idSite, const ToSettle& found, const QString& reason) {
  switch (found.state) {
    case State::noSuchSite:
      return Words::tr("There is no site %1 any more.").arg(idSite);
    case State::never:
      return Words::tr("Site %1 was not checked yet.").arg(idSite);
    case State::same:
      return Words::tr("Site %1 is as it should be.").arg(idSite);
    case State::notKept:
      return Words::tr("Site %1 changed, and its page was not kept for want of room.").arg(idSite);
    case State::failedFetch:
      return withReason(Words::tr("Site %1 does not answer").arg(idSite), reason);
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

QString bytesWords(std::size_t bytes) {
  return bytes == 1 ? Words::tr("1 byte")
                    : Words::tr("%1 bytes").arg(QLocale().toString(static_cast<qulonglong>(bytes)));
}

bool canBeSettled(const ToSettle& found) { return found.state == State::differs || found.state == State::failedFetch; }

}  // namespace tarnwick
