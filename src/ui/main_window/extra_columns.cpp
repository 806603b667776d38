// SPDX-License-Identifier: MIT
#include "ui/main_window/extra_columns.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <QCoreApplication>

#include "history/history_text.h"
#include "store/site_history.h"
#include "ui/controls/display_text.h"
#include "ui/main_window/extra_words.h"
#include "ui/main_window/site_grid_model.h"

namespace tarnwick {
namespace {

using namespace std::chrono;

QString translated(const char* text) { return QCoreApplication::translate("tarnwick::ExtraColumns", text); }

SortKey notKnown() { return {.isKnown = false}; }

QString nothing(const ExtraCell& /*cell*/) { return {}; }

std::optional<LocalTime> checkedAt(const ExtraCell& cell) {
  return parseDateTime(cell.row.cells[SiteGridModel::timeColumn]);
}

QString stamp(LocalTime time) { return QString::fromStdString(dateTimeText(time)); }

// State: the word, and since when, where that is known.

std::optional<LocalTime> since(const ExtraCell& cell) {
  if (cell.row.shade == SiteRow::Shade::down) {
    return cell.row.alarm.since   ? cell.row.alarm.since
           : cell.facts.downSince ? std::optional(localTimeAt(*cell.facts.downSince))
                                  : std::nullopt;
  }
  return cell.row.shade == SiteRow::Shade::up && cell.facts.upSince ? std::optional(localTimeAt(*cell.facts.upSince))
                                                                    : std::nullopt;
}

QString stateWords(const ExtraCell& cell, QString (*momentWords)(LocalTime since, LocalTime now)) {
  const SiteState state = stateOf(cell.row);
  QString words = wordOf(cell.row, cell.isTested);
  if (state == SiteState::certificate && !cell.isTested) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "certificate: %1")).arg(words);
  }
  if (state == SiteState::unconfirmed && !cell.isTested) {
    words = translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "down, %1")).arg(words);
  }
  const auto from = since(cell);
  return from ? translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "%1, since %2"))
                    .arg(words, momentWords(*from, cell.now))
              : words;
}

QString stateText(const ExtraCell& cell) { return stateWords(cell, &sinceWords); }

QString stateToolTip(const ExtraCell& cell) {
  return stateWords(cell, [](LocalTime since, LocalTime /*now*/) { return stamp(since); });
}

// The worst first, and of those what has been so for the longest time.
SortKey stateKey(const ExtraCell& cell) {
  constexpr auto kWorstFirst = std::to_array<SiteState>(
      {SiteState::noAnswer, SiteState::changed, SiteState::unconfirmed, SiteState::unsteady, SiteState::known,
       SiteState::notAPage, SiteState::certificate, SiteState::slow, SiteState::offline, SiteState::paused,
       SiteState::up, SiteState::never, SiteState::inactive});
  const auto place = std::ranges::find(kWorstFirst, stateOf(cell.row)) - kWorstFirst.begin();
  constexpr std::int64_t kBits = 40;  // of a moment, in seconds
  const auto from = since(cell);
  const std::int64_t moment = from ? from->time_since_epoch().count() : (std::int64_t{1} << kBits) - 1;
  return {.number = (std::int64_t{place} << kBits) + moment};
}

// Last Result: why it is down.

QString lastResultText(const ExtraCell& cell) {
  switch (cell.row.shade) {
    case SiteRow::Shade::down:
      if (cell.wrong) {
        return *cell.wrong;
      }
      // In general, as long as nobody has looked.
      return cell.row.fetched ? translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "the page differs"))
             : cell.facts.cause.empty() || cell.facts.cause == kPageDiffers ? wordOf(SiteState::noAnswer)
                                                                            : displayMessage(cell.facts.cause);
    case SiteRow::Shade::up:
      return cell.row.fetched ? translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "as the baseline"))
                              : cell.wrong.value_or(wordOf(SiteState::notAPage));
    default:
      return {};
  }
}

// Failures by their texts, then pages that differ, then those that are up without a page, then the good ones.
SortKey lastResultKey(const ExtraCell& cell) {
  enum Group { failed, differs, notAPage, good };
  switch (cell.row.shade) {
    case SiteRow::Shade::down:
      return {.number = cell.row.fetched ? differs : failed, .text = lastResultText(cell).toStdString()};
    case SiteRow::Shade::up:
      return {.number = cell.row.fetched ? good : notAPage};
    default:
      return notKnown();
  }
}

// Last Check.

QString lastCheckText(const ExtraCell& cell) {
  const auto at = checkedAt(cell);
  return at ? agoWords(*at, cell.now) : translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "never"));
}

QString lastCheckStamp(const ExtraCell& cell) {
  return QString::fromStdString(cell.row.cells[SiteGridModel::timeColumn]);
}

SortKey lastCheckKey(const ExtraCell& cell) { return {.text = cell.row.cells[SiteGridModel::timeColumn]}; }

// Latency, of the whole request.

QString latencyText(const ExtraCell& cell) {
  return cell.facts.latency ? QString::fromStdString(tookText(cell.facts.latency)) : QString();
}

SortKey latencyKey(const ExtraCell& cell) {
  return cell.facts.latency ? SortKey{.number = cell.facts.latency->count()} : notKnown();
}

// Next Check: so many changes of the clock's minute after the latest one.

std::optional<LocalTime> dueAt(const ExtraCell& cell) {
  const auto at = checkedAt(cell);
  return at && cell.row.shade != SiteRow::Shade::inactive
             ? std::optional<LocalTime>(floor<minutes>(*at) + minutes(cell.row.interval))
             : std::nullopt;
}

QString nextCheckText(const ExtraCell& cell) {
  if (cell.row.shade == SiteRow::Shade::inactive) {
    return {};
  }
  if (!cell.runIsOn) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "no run is on"));
  }
  const auto at = dueAt(cell);
  if (!at && !cell.newSitesAtOnce) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "at the next Start"));
  }
  if ((!at || *at <= cell.now) && cell.row.alarm.rests) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "after quiet hours"));
  }
  return inWords(at.value_or(cell.now), cell.now);
}

QString nextCheckStamp(const ExtraCell& cell) {
  const auto at = dueAt(cell);
  return at && cell.runIsOn ? stamp(*at) : nextCheckText(cell);
}

SortKey nextCheckKey(const ExtraCell& cell) {
  const auto at = dueAt(cell);
  return at ? SortKey{.number = at->time_since_epoch().count()} : notKnown();
}

// Tags.

QString tagsText(const ExtraCell& cell) {
  QStringList tags;
  for (const std::string& tag : cell.facts.tags) {
    tags << displayText(tag);
  }
  return tags.join(QStringLiteral(", "));
}

SortKey tagsKey(const ExtraCell& cell) {
  return cell.facts.tags.empty() ? notKnown() : SortKey{.text = tagsText(cell).toLower().toStdString()};
}

// Certificate: how long it is good.

QString certificateText(const ExtraCell& cell) {
  return cell.facts.certificate ? inWords(localTimeAt(cell.facts.certificate->ends), cell.now, Past::told) : QString();
}

QString certificateToolTip(const ExtraCell& cell) {
  if (!cell.facts.certificate) {
    return {};
  }
  const QString ends = translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "ends %1"))
                           .arg(stamp(localTimeAt(cell.facts.certificate->ends)));
  const QString issuer = displayText(cell.facts.certificate->issuer);
  return issuer.isEmpty()
             ? ends
             : translated(QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "%1, issued by %2")).arg(ends, issuer);
}

SortKey certificateKey(const ExtraCell& cell) {
  return cell.facts.certificate ? SortKey{.number = cell.facts.certificate->ends.time_since_epoch().count()}
                                : notKnown();
}

constexpr auto kColumns = std::to_array<ExtraColumn>({
    {"columnState", QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "State"),
     QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "How the site stands, and since when"), Qt::AlignLeft,
     "no answer, since 0000-00-00", FactsWanted{.outage = true}, false, &stateText, &stateToolTip, &stateKey},
    {"columnLastResult", QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "Last Result"),
     QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "What the last check found"), Qt::AlignLeft, "connection refused, as",
     FactsWanted{.outage = true}, false, &lastResultText, &lastResultText, &lastResultKey},
    {"columnLastCheck", QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "Last Check"),
     QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "How long ago the site was checked"), Qt::AlignLeft, "00 hours ago",
     FactsWanted{}, true, &lastCheckText, &lastCheckStamp, &lastCheckKey},
    {"columnLatency", QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "Latency"),
     QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "How long the last check took"), Qt::AlignRight, "0000 ms",
     FactsWanted{.latency = true}, false, &latencyText, &nothing, &latencyKey},
    {"columnNextCheck", QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "Next Check"),
     QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "When the site is checked again"), Qt::AlignLeft, "at the next Start",
     FactsWanted{}, true, &nextCheckText, &nextCheckStamp, &nextCheckKey},
    {"columnTags", QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "Tags"),
     QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "The words by which the site is found: tag:X"), Qt::AlignLeft,
     "shop, production", FactsWanted{.tags = true}, false, &tagsText, &tagsText, &tagsKey},
    {"columnCertificate", QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "Certificate"),
     QT_TRANSLATE_NOOP("tarnwick::ExtraColumns", "When the certificate of the site ends"), Qt::AlignLeft,
     "000 days ago", FactsWanted{.certificate = true}, true, &certificateText, &certificateToolTip, &certificateKey},
});

static_assert(kColumns[kLastResultColumn].text == &lastResultText);
static_assert(kColumns[kNextCheckColumn].text == &nextCheckText);

}  // namespace

std::span<const ExtraColumn> extraColumns() { return kColumns; }

}  // namespace tarnwick
