// SPDX-License-Identifier: MIT
#include "ui/main_window/worst_sites.h"

#include <algorithm>
#include <array>
#include <utility>
#include <QCoreApplication>
#include <QPainter>
#include <QPixmap>

namespace tarnwick {
namespace {

constexpr std::size_t kMostNamed = 5;
constexpr std::size_t kHighestShown = 99;
constexpr std::array kSizes{16, 22, 24, 32, 48, 64};

/// From the best to the worst.
constexpr std::array kBySeverity{SiteState::inactive,    SiteState::up,    SiteState::never,       SiteState::paused,
                                 SiteState::offline,     SiteState::slow,  SiteState::certificate, SiteState::notAPage,
                                 SiteState::unconfirmed, SiteState::known, SiteState::unsteady,    SiteState::noAnswer,
                                 SiteState::changed};

auto severity(SiteState state) { return std::ranges::find(kBySeverity, state) - kBySeverity.begin(); }

bool isDown(SiteState state) { return severity(state) >= severity(SiteState::known); }

bool isToBeNamed(SiteState state) { return severity(state) >= severity(SiteState::slow); }

struct Look {
  QColor fill;
  QColor ink;
};

Look lookOf(SiteState state) {
  if (severity(state) >= severity(SiteState::unconfirmed)) {
    return {QColor(0xC03030), Qt::white};
  }
  switch (state) {
    case SiteState::slow:
    case SiteState::certificate:
    case SiteState::notAPage:
      return {QColor(0xF6C343), Qt::black};
    case SiteState::offline:
      return {QColor(0xB9CBE8), Qt::black};
    case SiteState::inactive:
      return {QColor(0xA0A0A0), Qt::black};
    case SiteState::up:
      return {QColor(0x73DB9F), Qt::black};
    default:
      return {Qt::white, Qt::black};
  }
}

QPixmap pictureOf(const WorstSites& sites, int size) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const Look look = lookOf(sites.state);
  const double edge = size / 16.0;
  painter.setPen(QPen(look.ink, edge / 2));
  painter.setBrush(look.fill);
  painter.drawRoundedRect(QRectF(edge / 2, edge / 2, size - edge, size - edge), 3 * edge, 3 * edge);
  // Shape and number stand side by side, as in a row of the list.
  const bool hasNumber = sites.down > 0;
  const double box = hasNumber ? size * 0.5 : size * 0.75;
  paintIcon(painter, QRectF(hasNumber ? edge : (size - box) / 2, (size - box) / 2, box, box), sites.state, look.ink);
  if (hasNumber) {
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(std::max(size * (sites.down > 9 ? 7 : 10) / 16, 7));
    painter.setFont(font);
    painter.setPen(look.ink);
    const QString number = sites.down > kHighestShown ? QStringLiteral("…") : QString::number(sites.down);
    painter.drawText(QRectF(size * 0.5, 0, size * 0.5 - edge / 2, size), Qt::AlignCenter, number);
  }
  return picture;
}

QString translated(const char* text) { return QCoreApplication::translate("tarnwick::Tray", text); }

}  // namespace

WorstSites worstSites(const SiteGridModel& sites) {
  WorstSites worst;
  std::vector<int> named;
  for (int row = 0; row < sites.rowCount(); ++row) {
    const SiteState state = sites.stateOfRow(row);
    worst.active += state == SiteState::inactive ? 0 : 1;
    worst.down += isDown(state) ? 1 : 0;
    worst.state = severity(state) > severity(worst.state) ? state : worst.state;
    if (isToBeNamed(state)) {
      named.push_back(row);
    }
  }
  const std::size_t count = std::min(named.size(), kMostNamed);
  const auto order = [&](int row) { return std::pair(-severity(sites.stateOfRow(row)), row); };
  std::ranges::partial_sort(named, named.begin() + static_cast<std::ptrdiff_t>(count), {}, order);
  worst.count = isToBeNamed(worst.state) ? static_cast<std::size_t>(std::ranges::count_if(
                                               named, [&](int row) { return sites.stateOfRow(row) == worst.state; }))
                                         : 0;
  named.resize(count);
  worst.rows = std::move(named);
  return worst;
}

QString summaryOf(const WorstSites& sites) {
  if (sites.active == 0) {
    return translated(QT_TRANSLATE_NOOP("tarnwick::Tray", "No site is active"));
  }
  return (sites.active == 1 ? translated(QT_TRANSLATE_NOOP("tarnwick::Tray", "%1 of 1 site down")).arg(sites.down)
                            : translated(QT_TRANSLATE_NOOP("tarnwick::Tray", "%1 of %2 sites down"))
                                  .arg(QString::number(sites.down), QString::number(sites.active)));
}

QIcon iconOf(const WorstSites& sites) {
  QIcon icon;
  for (const int size : kSizes) {
    icon.addPixmap(pictureOf(sites, size));
  }
  return icon;
}

QIcon iconOf(SiteState state) {
  WorstSites alone;
  alone.state = state;
  return iconOf(alone);
}

}  // namespace tarnwick
