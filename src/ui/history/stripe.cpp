// SPDX-License-Identifier: MIT
#include "ui/history/stripe.h"

#include <algorithm>
#include <QCoreApplication>
#include <QStringList>

#include "history/history_text.h"
#include "ui/controls/display_text.h"
#include "ui/controls/tones.h"

namespace tarnwick {
namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(tarnwick::Stripe)
};

constexpr double kUp = 10;
constexpr double kSlow = 14;
constexpr double kDown = 18;
constexpr double kUnknown = 3;
/// Of a time that was down, however short.
constexpr double kLeastRed = 4;
constexpr std::size_t kMostOutagesTold = 3;

bool isSlow(const Stripe& stripe, const TimeSum& cell) {
  const auto median = cell.latency.quantile(0.5);
  return stripe.slow && median && *median > *stripe.slow;
}

bool isIn(const Stripe& stripe, const Outage& outage, Moment from, Moment until) {
  return outage.began <= until && outage.ended.value_or(stripe.now) >= from;
}

QString outageWords(const Stripe& stripe, const Outage& outage) {
  const QString length = QString::fromStdString(lengthText(outage.ended.value_or(stripe.now) - outage.began));
  const QString cause = displayMessage(outage.cause);
  return outage.ended ? Words::tr("Down from %1 to %2 (%3): %4")
                            .arg(momentWords(outage.began), momentWords(*outage.ended), length, cause)
                      : Words::tr("Down since %1 (%2): %3").arg(momentWords(outage.began), length, cause);
}

}  // namespace

QRectF cellArea(const Stripe& stripe, const QRectF& area, std::size_t cell) {
  const double width = area.width() / static_cast<double>(std::max<std::size_t>(1, stripe.view.cells.size()));
  return {area.left() + width * static_cast<double>(cell), area.top(), width, area.height()};
}

std::optional<std::size_t> cellAt(const Stripe& stripe, double x, double width) {
  const std::size_t count = stripe.view.cells.size();
  if (count == 0 || x < 0 || x >= width) {
    return std::nullopt;
  }
  return std::min(count - 1, static_cast<std::size_t>(x / width * static_cast<double>(count)));
}

void paintStripe(QPainter& painter, const QRectF& area, const Stripe& stripe, bool dark) {
  const auto fill = [&](const QRectF& cell, double from, double to, StripeTone tone) {
    const double scale = area.height() / kDown;
    const double gap = cell.width() >= 4 ? 1 : 0;
    painter.fillRect(QRectF(cell.left(), cell.bottom() - to * scale, cell.width() - gap, (to - from) * scale),
                     stripeColour(tone, dark));
  };
  for (std::size_t i = 0; i < stripe.view.cells.size(); ++i) {
    const TimeSum& cell = stripe.view.cells[i];
    const QRectF place = cellArea(stripe, area, i);
    if (cell.known().count() == 0) {
      fill(place, 0, kUnknown, StripeTone::unknown);
    } else if (cell.down.count() == 0) {
      const bool slow = isSlow(stripe, cell);
      fill(place, 0, slow ? kSlow : kUp, slow ? StripeTone::slow : StripeTone::up);
    } else {
      const double share = static_cast<double>(cell.down.count()) / static_cast<double>(cell.known().count());
      const double red = cell.up.count() == 0 ? kDown : std::clamp(share * kDown, kLeastRed, kDown - 2);
      fill(place, 0, kDown - red, StripeTone::up);
      fill(place, kDown - red, kDown, StripeTone::down);
    }
  }
}

QString periodWords(const Period& period) {
  return period.length == 1 ? Words::tr("24 hours") : Words::tr("%1 days").arg(period.length);
}

QString momentWords(Moment moment) { return QString::fromStdString(dateTimeText(localTimeAt(moment))); }

QString wholeWords(const Stripe& stripe) {
  const TimeSum whole = stripe.view.whole();
  if (!whole.uptime()) {
    return Words::tr("%1: nothing is known").arg(periodWords(stripe.view.period));
  }
  const auto outages = std::ranges::count_if(stripe.outages, [&](const Outage& outage) {
    return isIn(stripe, outage, stripe.view.edges.front(), stripe.view.edges.back());
  });
  return Words::tr("%1: %2 up, %3")
      .arg(periodWords(stripe.view.period), QString::fromStdString(uptimeText(whole.uptime())),
           outages == 0   ? Words::tr("no outage")
           : outages == 1 ? Words::tr("1 outage")
                          : Words::tr("%1 outages").arg(outages));
}

QString cellWords(const Stripe& stripe, std::size_t cell) {
  const Moment from = stripe.view.edges.at(cell);
  const Moment until = stripe.view.edges.at(cell + 1);
  const TimeSum& sum = stripe.view.cells.at(cell);
  const QString time = Words::tr("%1 to %2").arg(momentWords(from), momentWords(until));
  if (sum.known().count() == 0) {
    return Words::tr("%1: nothing is known").arg(time);
  }
  QStringList lines{Words::tr("%1: %2 up").arg(time, QString::fromStdString(uptimeText(sum.uptime())))};
  if (const auto median = sum.latency.quantile(0.5)) {
    lines += Words::tr("Median %1, slowest %2")
                 .arg(QString::fromStdString(tookText(median)), QString::fromStdString(tookText(sum.slowest)));
  }
  std::size_t told = 0;
  for (const Outage& outage : stripe.outages) {
    if (isIn(stripe, outage, from, until) && told++ < kMostOutagesTold) {
      lines += outageWords(stripe, outage);
    }
  }
  if (told > kMostOutagesTold) {
    lines += Words::tr("and %1 more").arg(told - kMostOutagesTold);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace tarnwick
