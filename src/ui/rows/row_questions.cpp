// SPDX-License-Identifier: MIT
#include "ui/rows/row_questions.h"

#include <algorithm>
#include <QCoreApplication>

#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMostListed = 10;
constexpr qsizetype kLongestAddress = 80;

QString shortened(const QString& text) {
  return text.size() > kLongestAddress ? text.left(kLongestAddress - 1) + QChar(0x2026) : text;
}

}  // namespace

QString listOf(const ChosenSites& sites) {
  QStringList lines;
  // One line more would tell nothing but how many lines there are not.
  const std::size_t listed = sites.size() <= kMostListed + 1 ? sites.size() : kMostListed;
  for (std::size_t i = 0; i < listed; ++i) {
    lines << QCoreApplication::translate("tarnwick::RowActions", "Site %1: %2")
                 .arg(QString::number(sites[i].idSite), shortened(displayText(sites[i].url)));
  }
  if (listed < sites.size()) {
    lines << QCoreApplication::translate("tarnwick::RowActions", "and %1 more").arg(sites.size() - listed);
  }
  return lines.join(QLatin1Char('\n'));
}

QString counted(std::size_t count, const QString& one, const QString& several) {
  return count == 1 ? one : several.arg(count);
}

QString remainderText(std::size_t all, std::size_t taken, const QString& one, const QString& several) {
  return taken < all ? (all - taken == 1 ? one : several).arg(QString::number(all - taken), QString::number(all))
                     : QString();
}

std::string paragraphs(const QStringList& texts) {
  QStringList shown = texts;
  shown.removeAll(QString());
  return shown.join(QLatin1String("\n\n")).toStdString();
}

}  // namespace tarnwick
